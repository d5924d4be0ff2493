#include "platform/SharedMemory.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace orvane::platform {

namespace {

/// Views begin at a page's start.
std::uint64_t wholePages(std::uint64_t size) {
    const auto page = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
    return (size + page - 1) / page * page;
}

[[noreturn]] void throwLastError(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

} // namespace

SharedPages::SharedPages(std::size_t size)
    : size_(size), data_(mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)) {
    if (data_ == MAP_FAILED) {
        throw std::bad_alloc();
    }
}

SharedPages::~SharedPages() {
    munmap(data_, size_);
}

SharedStore::SharedStore() : file_(memfd_create("orvane", MFD_CLOEXEC)) {
    if (file_ < 0) {
        throwLastError("no shared memory can be had");
    }
}

SharedStore::~SharedStore() {
    close(file_);
}

SharedPlace SharedStore::put(std::span<const std::byte> bytes) {
    const SharedPlace place = {end_->fetch_add(wholePages(bytes.size())), bytes.size()};
    std::uint64_t done = 0;
    while (done < place.size) {
        // Written, not mapped: where there is no memory left this fails, and a store would end the process.
        const ssize_t written =
            pwrite(file_, bytes.data() + done, place.size - done, static_cast<off_t>(place.offset + done));
        if (written < 0 && errno != EINTR) {
            throwLastError("no shared memory is left");
        }
        done += written > 0 ? static_cast<std::uint64_t>(written) : 0;
    }
    return place;
}

SharedStore::View::View(const SharedStore& store, SharedPlace place)
    : file_(store.file_), offset_(place.offset) {
    struct stat status {};
    const bool isThere = fstat(file_, &status) == 0 && place.offset % wholePages(1) == 0 &&
                         place.offset <= static_cast<std::uint64_t>(status.st_size) &&
                         place.size <= static_cast<std::uint64_t>(status.st_size) - place.offset;
    if (!isThere) {
        throw std::bad_alloc();
    }
    if (place.size > 0) {
        void* data = mmap(nullptr, place.size, PROT_READ, MAP_SHARED, file_, static_cast<off_t>(offset_));
        if (data == MAP_FAILED) {
            throw std::bad_alloc();
        }
        bytes_ = {static_cast<const std::byte*>(data), place.size};
    }
}

SharedStore::View::~View() {
    if (!bytes_.empty()) {
        munmap(const_cast<std::byte*>(bytes_.data()), bytes_.size()); // NOLINT: what was mapped
        fallocate(file_, FALLOC_FL_PUNCH_HOLE | FALLOC_FL_KEEP_SIZE, static_cast<off_t>(offset_),
                  static_cast<off_t>(wholePages(bytes_.size())));
    }
}

} // namespace orvane::platform
