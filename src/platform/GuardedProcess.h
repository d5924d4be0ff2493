#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace orvane::platform {

/// What a guarded process may take.
struct GuardLimits {
    std::int64_t memory = 0; ///< bytes of its own, on top of what the process that starts it has
    std::uint32_t processorSeconds = 60;
    std::uint32_t clockSeconds = 0; ///< 0: no limit
};

/// How a guarded process ended.
struct GuardedEnd {
    bool isDone = false; ///< its work returned
    std::string reason;  ///< else what became of it, as "crashed (Segmentation fault)"
};

/// A process of its own, forked from this one, for work with a library that may not bear what it is given:
/// neither a crash nor an endless run nor a hunger for memory harms this process. What the work changes in
/// memory is lost, but for what is shared (`SharedMemory.h`); what it writes to files stays. It prints
/// nothing, leaves no core file, ends with the thread that started it, and by the signals that end programs,
/// whatever this process does about them.
class GuardedProcess {
public:
    /// Starts `work`. Throws `std::system_error` where no process can be started.
    GuardedProcess(const std::function<void()>& work, const GuardLimits& limits);
    GuardedProcess(GuardedProcess&& other) noexcept;
    GuardedProcess& operator=(GuardedProcess&& other) noexcept;
    /// Ends the process at once where it still runs.
    ~GuardedProcess();

    /// Waits for its end.
    GuardedEnd wait();

    std::int64_t id() const { return id_; }

    /// Waits until one of `processes`, all of which run and are all the children of this process, has ended,
    /// and gives its position.
    static std::size_t waitForAny(std::span<GuardedProcess> processes);

private:
    std::int64_t id_ = 0; ///< 0 once it was waited for
    GuardLimits limits_;
};

/// Lets the guarded process that calls this use the processor for so many seconds from now on.
void renewProcessorTime(std::uint32_t seconds);

/// Bytes as a person reads them: "1.5 GiB".
std::string shownBytes(std::int64_t bytes);

/// Bytes of memory that this machine has, or that it grants to the group of processes that this one is in.
std::int64_t machineMemory();

} // namespace orvane::platform
