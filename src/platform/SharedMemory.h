#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <new>
#include <span>

namespace orvane::platform {

/// A page or more of zeros that a process shares with those that are forked from it later.
class SharedPages {
public:
    /// Throws `std::bad_alloc`.
    explicit SharedPages(std::size_t size);
    SharedPages(const SharedPages&) = delete;
    SharedPages& operator=(const SharedPages&) = delete;
    ~SharedPages();

    void* data() const { return data_; }

private:
    std::size_t size_;
    void* data_;
};

/// One record of a type without addresses in it, shared like that.
template <class Record>
class SharedRecord {
public:
    SharedRecord() : pages_(sizeof(Record)), record_(new (pages_.data()) Record()) {}
    Record& operator*() const { return *record_; }
    Record* operator->() const { return record_; }

private:
    SharedPages pages_;
    Record* record_;
};

/// Where bytes lie in a `SharedStore`.
struct SharedPlace {
    std::uint64_t offset = 0;
    std::uint64_t size = 0;
};

/// Bytes that forked processes put down for the one that they came from, as many as there is memory. They
/// have no name in any folder, and go with the last of the processes.
class SharedStore {
public:
    /// Throws `std::system_error`.
    SharedStore();
    SharedStore(const SharedStore&) = delete;
    SharedStore& operator=(const SharedStore&) = delete;
    ~SharedStore();

    /// Puts bytes down; several processes may do so at the same time. Throws `std::system_error`.
    SharedPlace put(std::span<const std::byte> bytes);

    /// Bytes that were put down, until the end of this object, which gives them back.
    class View {
    public:
        /// Throws `std::bad_alloc`, also where the place is none of the store.
        View(const SharedStore& store, SharedPlace place);
        View(const View&) = delete;
        View& operator=(const View&) = delete;
        ~View();

        std::span<const std::byte> bytes() const { return bytes_; }

    private:
        int file_;
        std::uint64_t offset_;
        std::span<const std::byte> bytes_;
    };

private:
    int file_;
    SharedRecord<std::atomic<std::uint64_t>> end_;
};

} // namespace orvane::platform
