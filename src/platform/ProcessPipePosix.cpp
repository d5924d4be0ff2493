#include "platform/ProcessPipe.h"

#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <poll.h>
#include <system_error>
#include <unistd.h>

namespace orvane::platform {

static_assert(ProcessPipe::kMostBytes <= PIPE_BUF);

ProcessPipe::ProcessPipe() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::system_error(errno, std::generic_category(), "no process can be started");
    }
    from_ = ends[0];
    to_ = ends[1];
}

ProcessPipe::~ProcessPipe() {
    close(from_);
    closeSending();
}

bool ProcessPipe::send(std::span<const std::byte> message) const {
    ssize_t written = -1;
    while ((written = write(to_, message.data(), message.size())) < 0 && errno == EINTR) {
    }
    return written == static_cast<ssize_t>(message.size());
}

void ProcessPipe::closeSending() {
    if (to_ >= 0) {
        close(to_);
        to_ = -1;
    }
}

ProcessPipe::Received ProcessPipe::receive(std::span<std::byte> message, int milliseconds) const {
    pollfd waiting = {from_, POLLIN, 0};
    if (poll(&waiting, 1, milliseconds) < 1) {
        return Received::nothing;
    }
    const ssize_t length = read(from_, message.data(), message.size());
    if (length < 0) {
        return Received::nothing;
    }
    return static_cast<std::size_t>(length) == message.size() ? Received::message : Received::end;
}

std::size_t ProcessPipe::take(std::span<std::byte> message) const {
    pollfd waiting = {from_, POLLIN, 0};
    if (poll(&waiting, 1, 0) < 1) {
        return 0;
    }
    const ssize_t length = read(from_, message.data(), message.size());
    return length < 0 ? 0 : static_cast<std::size_t>(length);
}

} // namespace orvane::platform
