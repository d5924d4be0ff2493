#pragma once

#include <cstddef>
#include <span>

namespace orvane::platform {

/// Short messages from forked processes to the one that they came from.
class ProcessPipe {
public:
    /// A message of at most this many bytes arrives whole.
    static constexpr std::size_t kMostBytes = 4096;

    /// Throws `std::system_error`.
    ProcessPipe();
    ProcessPipe(const ProcessPipe&) = delete;
    ProcessPipe& operator=(const ProcessPipe&) = delete;
    ~ProcessPipe();

    /// Sends a message, from any of the processes. Gives false where nobody can receive it.
    bool send(std::span<const std::byte> message) const;

    /// Says that this process sends nothing more, so that it sees when the others do not either.
    void closeSending();

    enum class Received { message, nothing, end };
    /// Waits for `message.size()` bytes that were sent as one message: `nothing` after `milliseconds` without
    /// one, `end` when no process is left that could send one. All senders use the same size.
    Received receive(std::span<std::byte> message, int milliseconds) const;

    /// Takes what has been sent, at most `message.size()` bytes, without waiting. Gives how many bytes.
    std::size_t take(std::span<std::byte> message) const;

private:
    int from_;
    int to_;
};

} // namespace orvane::platform
