#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace orvane {

/// How a run ended.
struct WatchedOutcome {
    int status = -1;           ///< -1 where a signal ended it
    int signal = 0;            ///< that signal; SIGALRM: it took longer than it may
    int leftProcesses = 0;     ///< that it had started and that were there when it ended
    double largestProcess = 0; ///< bytes in memory of the command or of a process that it waited for
    std::string output;
    std::string errors;
};

/// The command in a process of its own, watched until its end.
class WatchedRun {
public:
    /// Starts it. `folder` is for what it says and for temporary files; it has to be there until the end.
    WatchedRun(std::vector<std::string> arguments, const std::string& folder);
    WatchedRun(const WatchedRun&) = delete;
    WatchedRun& operator=(const WatchedRun&) = delete;
    ~WatchedRun();

    pid_t command() const { return command_; }

    /// The processes that it and those that it started have started and that are there now.
    std::vector<pid_t> startedProcesses() const;

    /// Waits for the end. Processes that are left get `graceSeconds` to end, and are ended then.
    WatchedOutcome finish(double graceSeconds = 0);

private:
    std::string folder_;
    pid_t command_ = 0;
    bool isRunning_ = true;
};

} // namespace orvane
