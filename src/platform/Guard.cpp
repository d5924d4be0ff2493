#include "platform/Guard.h"

#include "platform/GuardedProcess.h"
#include "platform/ProcessPipe.h"

#include <algorithm>
#include <system_error>

namespace orvane::platform {

namespace {

constexpr std::int64_t kOwnMemory = std::int64_t{1} << 30;
constexpr std::uint32_t kMostSeconds = 60;
constexpr std::uint32_t kMostSecondsByTheClock = 600;
/// Stands before what the work gave, which may be empty.
constexpr char kDone = '+';

} // namespace

GuardedOutcome runGuarded(const std::function<std::string()>& work, std::int64_t memory) {
    try {
        const ProcessPipe pipe;
        const auto answer = [&] {
            const std::string text = kDone + work();
            pipe.send(std::as_bytes(std::span(text).first(std::min(text.size(), ProcessPipe::kMostBytes))));
        };
        GuardedProcess(answer, {memory + kOwnMemory, kMostSeconds, kMostSecondsByTheClock}).wait();
        std::string text(ProcessPipe::kMostBytes, '\0');
        text.resize(pipe.take(std::as_writable_bytes(std::span(text))));
        if (text.empty() || text[0] != kDone) {
            return {};
        }
        return {true, text.substr(1)};
    } catch (const std::system_error& error) {
        return {false, error.what()};
    }
}

} // namespace orvane::platform
