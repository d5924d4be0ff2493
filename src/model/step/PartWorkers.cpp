#include "model/step/PartWorkers.h"

#include "model/step/Kernel.h"
#include "model/step/PartReading.h"

#include <algorithm>
#include <numeric>
#include <system_error>

namespace orvane::step {

namespace {

std::uint64_t nanoseconds(double seconds) {
    return static_cast<std::uint64_t>(seconds * 1e9);
}

/// The order of work: large parts first, so that no worker is left alone with one at the end.
std::vector<std::uint32_t> largestFirst(const std::vector<PartJob>& jobs) {
    std::vector<std::uint32_t> order(jobs.size());
    std::iota(order.begin(), order.end(), 0U);
    std::ranges::stable_sort(order, std::greater(), [&](std::uint32_t part) { return jobs[part].faceCount; });
    return order;
}

/// What all workers of a file have in common.
class PartCrew {
public:
    PartCrew(const ReaderTask& task, const ParsedStepFile& parsed, const std::vector<PartJob>& jobs,
             ReaderChannel& channel)
        : task_(task), parsed_(parsed), jobs_(jobs), channel_(channel), order_(largestFirst(jobs)) {}

    void run() {
        std::size_t seat = 0;
        for (; seat < std::min<std::size_t>(task_.jobs, jobs_.size()) && start(seat); ++seat) {
        }
        while (!workers_.empty()) {
            const std::size_t ended = platform::GuardedProcess::waitForAny(workers_);
            const platform::GuardedEnd end = workers_[ended].wait();
            const std::size_t freeSeat = seats_[ended];
            workers_.erase(workers_.begin() + static_cast<std::ptrdiff_t>(ended));
            seats_.erase(seats_.begin() + static_cast<std::ptrdiff_t>(ended));
            clear(freeSeat, end);
            if (!end.isDone && channel_.state->nextPart < jobs_.size()) {
                start(freeSeat);
            }
        }
        loseTheRest();
    }

private:
    bool start(std::size_t seat) {
        try {
            workers_.emplace_back([this, seat] { work(seat); }, task_.limits);
        } catch (const std::system_error& error) {
            whyNoWorker_ = error.what();
            return false;
        }
        seats_.push_back(seat);
        channel_.state->processes[seat] = workers_.back().id();
        return true;
    }

    /// In a process of its own: takes one part after the other.
    void work(std::size_t seat) {
        std::atomic<std::uint32_t>& current = channel_.state->partOf[seat];
        for (std::uint32_t i = channel_.state->nextPart++; i < jobs_.size(); i = channel_.state->nextPart++) {
            current = order_[i] + 1;
            platform::renewProcessorTime(task_.limits.processorSeconds);
            read(order_[i]);
            current = 0;
        }
    }

    void read(std::uint32_t part) {
        try {
            PartTimes times;
            // Few parts leave cores idle, which the mesher can use for the faces of one.
            const StepPart read =
                readPart(parsed_, jobs_[part], task_.meshing, jobs_.size() < task_.jobs, times);
            channel_.state->transferNanoseconds += nanoseconds(times.transferring);
            channel_.state->meshNanoseconds += nanoseconds(times.meshing);
            channel_.send(ReaderMessage::Kind::part, part, read);
        } catch (const Standard_Failure& failure) {
            lose(part, "cannot take it (" + failureText(failure) + ")");
        } catch (const std::system_error& error) {
            lose(part, std::string("cannot hand it over: ") + error.what());
        }
    }

    void clear(std::size_t seat, const platform::GuardedEnd& end) {
        channel_.state->processes[seat] = 0;
        if (const std::uint32_t part = channel_.state->partOf[seat].exchange(0); part != 0) {
            lose(part - 1, end.reason);
        }
    }

    void loseTheRest() {
        for (std::size_t i = channel_.state->nextPart; i < jobs_.size(); ++i) {
            lose(order_[i], "cannot begin: " + whyNoWorker_);
        }
    }

    void lose(std::uint32_t part, const std::string& reason) {
        channel_.send(ReaderMessage::Kind::lostPart, part, reason);
    }

    const ReaderTask& task_;
    const ParsedStepFile& parsed_;
    const std::vector<PartJob>& jobs_;
    ReaderChannel& channel_;
    std::vector<std::uint32_t> order_;
    std::vector<platform::GuardedProcess> workers_;
    std::vector<std::size_t> seats_; ///< of the workers, in their order
    std::string whyNoWorker_;
};

} // namespace

void runPartWorkers(const ReaderTask& task, const ParsedStepFile& parsed, const std::vector<PartJob>& jobs,
                    ReaderChannel& channel) {
    PartCrew(task, parsed, jobs, channel).run();
}

} // namespace orvane::step
