#pragma once

#include "model/step/StepRecordBytes.h"
#include "platform/ProcessPipe.h"
#include "platform/SharedMemory.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <string>

namespace orvane::step {

/// Processes that may work on the parts of one file at the same time.
inline constexpr std::size_t kMostJobs = 1024;

/// What the processes that read one file tell while they work.
struct ReaderState {
    std::atomic<std::uint64_t> bytesParsed{0};
    std::atomic<bool> isParsed{false};      ///< by the kernel, into entities
    std::atomic<std::uint32_t> nextPart{0}; ///< to be taken, by its place in the order of work
    std::array<std::atomic<std::uint32_t>, kMostJobs>
        partOf{}; ///< what each worker is at, plus 1; 0: nothing
    std::array<std::atomic<std::int64_t>, kMostJobs> processes{}; ///< of the workers; 0: none
    std::atomic<std::uint64_t> transferNanoseconds{0};
    std::atomic<std::uint64_t> meshNanoseconds{0};
};

/// One thing that a process tells the one that wants the model. What belongs to it lies in the store.
struct ReaderMessage {
    enum class Kind : std::uint32_t {
        refused,  ///< a text: why the file is refused
        tree,     ///< `StepTree`
        part,     ///< `StepPart` of number `part`
        lostPart, ///< a text: why there is no part of number `part`
        faces,    ///< faces and warnings of a file that was read as one shape
        done      ///< there is no more to come
    };
    Kind kind = Kind::done;
    std::uint32_t part = 0;
    platform::SharedPlace place;
};

/// Between the process that wants a model and those that read one STEP file for it.
struct ReaderChannel {
    platform::ProcessPipe pipe;
    platform::SharedStore store;
    platform::SharedRecord<ReaderState> state;

    /// Puts records down and tells of them. Throws `std::system_error` where there is no memory left for
    /// them.
    template <class... Records>
    void send(ReaderMessage::Kind kind, std::uint32_t part, const Records&... records) {
        RecordWriter writer;
        writer(records...);
        const ReaderMessage message = {kind, part, store.put(writer.bytes())};
        pipe.send(std::as_bytes(std::span(&message, 1)));
    }

    /// Takes the records of a message. Throws `std::out_of_range` and `std::bad_alloc`.
    template <class... Records>
    void take(const ReaderMessage& message, Records&... records) const {
        const platform::SharedStore::View view(store, message.place);
        RecordReader reader(view.bytes());
        reader(records...);
    }
};

} // namespace orvane::step
