#include "model/step/StepProcesses.h"

#include "model/records/ModelError.h"
#include "model/step/ReaderProcess.h"
#include "model/step/StepLimits.h"
#include "platform/MemoryUse.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <system_error>
#include <thread>

namespace orvane::step {

namespace {

constexpr int kTickMilliseconds = 100;

unsigned jobsOf(const ReadingOptions& options) {
    const unsigned jobs = options.jobs == 0 ? std::thread::hardware_concurrency() : options.jobs;
    return std::clamp(jobs, 1U, static_cast<unsigned>(kMostJobs));
}

std::uint64_t sizeOf(const std::filesystem::path& file) {
    std::error_code none;
    const std::uintmax_t size = std::filesystem::file_size(file, none);
    return none ? 0 : size;
}

/// One file on its way through its processes.
class FileReading {
public:
    using Work = void (*)(const ReaderTask&, ReaderChannel&);

    FileReading(const std::filesystem::path& file, const ReadingOptions& options)
        : options_(options), size_(sizeOf(file)), task_{file, options.meshing, jobsOf(options),
                                                        kernelLimits(size_, options.meshing)} {}

    /// Runs the work in a reader process, and takes what it sends.
    void run(Work work) {
        try {
            channel_.emplace();
            platform::GuardedProcess reader([&] { work(task_, *channel_); }, task_.limits);
            channel_->pipe.closeSending();
            receive(reader.id());
            end_ = reader.wait();
        } catch (const std::system_error& error) {
            throw ModelError(task_.file.string() + ": the file cannot be read: " + error.what());
        }
        addCosts();
        if (!refusal_.empty()) {
            throw ModelError(refusal_);
        }
    }

    StepFile takeProducts() {
        if (!tree_) {
            throw ModelError(task_.file.string() + ": Open CASCADE " + endText() + " while it read the file");
        }
        StepFile out{std::move(*tree_), std::move(parts_)};
        out.parts.resize(out.tree.partCount);
        for (PartOutcome& outcome : out.parts) {
            if (!outcome.part && outcome.loss.empty()) {
                outcome.loss = endText();
            }
        }
        return out;
    }

    std::vector<FaceRecord> takeFaces(std::vector<std::string>& warnings) {
        if (!faces_) {
            throw ModelError(task_.file.string() + ": Open CASCADE " + endText() + " while it read the file");
        }
        std::ranges::move(warnings_, std::back_inserter(warnings));
        return std::move(*faces_);
    }

private:
    /// Why something is missing that nobody told of.
    std::string endText() const { return end_.reason.empty() ? "was ended from outside" : end_.reason; }

    void receive(std::int64_t reader) {
        ReaderMessage message;
        auto received = platform::ProcessPipe::Received::nothing;
        do {
            received =
                channel_->pipe.receive(std::as_writable_bytes(std::span(&message, 1)), kTickMilliseconds);
            if (received == platform::ProcessPipe::Received::message) {
                take(message);
            }
            tick(reader);
        } while (received != platform::ProcessPipe::Received::end);
    }

    void take(const ReaderMessage& message) {
        try {
            switch (message.kind) {
            case ReaderMessage::Kind::refused:
                channel_->take(message, refusal_);
                break;
            case ReaderMessage::Kind::tree:
                channel_->take(message, tree_.emplace());
                parsingEnd_ = Clock::now();
                break;
            case ReaderMessage::Kind::part:
                channel_->take(message, outcomeOf(message.part).part.emplace());
                ++partsDone_;
                break;
            case ReaderMessage::Kind::lostPart:
                channel_->take(message, outcomeOf(message.part).loss);
                ++partsDone_;
                break;
            case ReaderMessage::Kind::faces:
                channel_->take(message, faces_.emplace(), warnings_);
                break;
            case ReaderMessage::Kind::done:
                break;
            }
        } catch (const std::out_of_range&) {
            refusal_ = task_.file.string() + ": Open CASCADE went out of its mind while it read the file";
        }
    }

    PartOutcome& outcomeOf(std::uint32_t part) {
        if (!tree_ || part >= tree_->partCount) {
            throw std::out_of_range("a part that there is not");
        }
        parts_.resize(tree_->partCount);
        return parts_[part];
    }

    void tick(std::int64_t reader) {
        const auto now = Clock::now();
        if (now - lastTick_ < std::chrono::milliseconds(kTickMilliseconds)) {
            return;
        }
        lastTick_ = now;
        if (options_.onProgress) {
            options_.onProgress(progress());
        }
        if (options_.followsMemory && options_.costs != nullptr && now >= nextMemory_) {
            options_.costs->peakMemory = std::max(options_.costs->peakMemory, memory(reader));
            // The system counts page by page, which is not to be what takes the time.
            nextMemory_ = Clock::now() + 20 * (Clock::now() - now);
        }
    }

    ReadingProgress progress() const {
        using Stage = ReadingProgress::Stage;
        const std::string name = task_.file.filename().string();
        const ReaderState& state = *channel_->state;
        if (tree_) {
            return {Stage::meshing, partsDone_, tree_->partCount, name};
        }
        if (state.isParsed) {
            return {Stage::findingParts, 0, 0, name};
        }
        const bool isWhole = state.bytesParsed >= size_;
        return isWhole ? ReadingProgress{Stage::building, 0, 0, name}
                       : ReadingProgress{Stage::parsing, state.bytesParsed, size_, name};
    }

    std::uint64_t memory(std::int64_t reader) const {
        std::int64_t sum = platform::memoryUse() + platform::memoryUse(reader);
        for (std::size_t seat = 0; seat < task_.jobs; ++seat) {
            const std::int64_t worker = channel_->state->processes[seat];
            sum += worker == 0 ? 0 : platform::memoryUse(worker);
        }
        return static_cast<std::uint64_t>(sum);
    }

    void addCosts() const {
        if (options_.costs == nullptr) {
            return;
        }
        options_.costs->parsing += std::chrono::duration<double>(parsingEnd_ - begin_).count();
        options_.costs->transferring += static_cast<double>(channel_->state->transferNanoseconds) * 1e-9;
        options_.costs->meshing += static_cast<double>(channel_->state->meshNanoseconds) * 1e-9;
    }

    using Clock = std::chrono::steady_clock;

    const ReadingOptions& options_;
    std::uint64_t size_;
    ReaderTask task_;
    std::optional<ReaderChannel> channel_;
    platform::GuardedEnd end_;
    std::string refusal_;
    std::optional<StepTree> tree_;
    std::vector<PartOutcome> parts_;
    std::uint64_t partsDone_ = 0;
    std::optional<std::vector<FaceRecord>> faces_;
    std::vector<std::string> warnings_;
    Clock::time_point begin_ = Clock::now();
    Clock::time_point parsingEnd_ = begin_;
    Clock::time_point lastTick_ = begin_;
    Clock::time_point nextMemory_ = begin_;
};

} // namespace

StepFile readStepProducts(const std::filesystem::path& file, const ReadingOptions& options) {
    FileReading reading(file, options);
    reading.run(readAsProducts);
    return reading.takeProducts();
}

std::vector<FaceRecord> readStepShape(const std::filesystem::path& file, const ReadingOptions& options,
                                      std::vector<std::string>& warnings) {
    FileReading reading(file, options);
    reading.run(readAsOneShape);
    return reading.takeFaces(warnings);
}

} // namespace orvane::step
