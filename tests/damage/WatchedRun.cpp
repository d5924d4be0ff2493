#include "damage/WatchedRun.h"

#include "cli/Command.h"
#include "support/TemporaryFolder.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sstream>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace orvane {

namespace {

constexpr unsigned kMostSeconds = 20;

void sendTo(int descriptor, const std::string& path) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(file, descriptor);
    close(file);
}

/// In the process that becomes the command.
[[noreturn]] void becomeCommand(std::vector<std::string> arguments, const std::string& folder) {
    sendTo(STDOUT_FILENO, folder + "/out");
    sendTo(STDERR_FILENO, folder + "/err");
    const std::string temporary = folder + "/tmp";
    std::filesystem::create_directory(temporary);
    setenv("TMPDIR", temporary.c_str(), 1);
    std::vector<char*> argv;
    for (std::string& argument : arguments) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    alarm(kMostSeconds);
    _exit(cli::runCommand(static_cast<int>(arguments.size()), argv.data()));
}

/// The parent of a process; 0 where that has ended. Not every kernel lists a process's children.
pid_t parentOf(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string text;
    std::getline(file, text);
    const std::size_t name = text.rfind(')'); // may hold blanks and brackets
    if (name == std::string::npos) {
        return 0;
    }
    std::istringstream words(text.substr(name + 1));
    char state = 0;
    pid_t parent = 0;
    words >> state >> parent;
    return state == 'Z' ? 0 : parent;
}

std::vector<pid_t> allProcesses() {
    std::vector<pid_t> processes;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const pid_t process = std::atoi(entry.path().filename().c_str());
        if (process > 0) {
            processes.push_back(process);
        }
    }
    return processes;
}

std::vector<pid_t> descendantsOf(pid_t ancestor) {
    std::vector<std::pair<pid_t, pid_t>> parents;
    for (const pid_t process : allProcesses()) {
        parents.emplace_back(process, parentOf(process));
    }
    std::vector<pid_t> found{ancestor};
    for (std::size_t at = 0; at < found.size(); ++at) {
        for (const auto& [process, parent] : parents) {
            if (parent == found[at]) {
                found.push_back(process);
            }
        }
    }
    found.erase(found.begin());
    return found;
}

/// Waits for the processes that a command has left to this one, and returns how many those were at once.
int reapLeftProcesses(double graceSeconds) {
    const auto patience = std::chrono::steady_clock::now() + std::chrono::duration<double>(graceSeconds);
    int left = 0;
    for (bool isOver = false;;) {
        const pid_t process = waitpid(-1, nullptr, isOver ? 0 : WNOHANG);
        if (process < 0) {
            return left;
        }
        isOver = std::chrono::steady_clock::now() >= patience;
        left += process > 0 && isOver ? 1 : 0;
        if (process == 0 && isOver) {
            for (const pid_t alive : descendantsOf(getpid())) {
                kill(alive, SIGKILL);
            }
        } else if (process == 0) {
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }
}

} // namespace

WatchedRun::WatchedRun(std::vector<std::string> arguments, const std::string& folder) : folder_(folder) {
    prctl(PR_SET_CHILD_SUBREAPER,
          1); // so that what the command leaves behind becomes a child of this process
    command_ = fork();
    if (command_ == 0) {
        becomeCommand(std::move(arguments), folder_);
    }
}

WatchedRun::~WatchedRun() {
    if (isRunning_) {
        kill(command_, SIGKILL);
        finish();
    }
}

std::vector<pid_t> WatchedRun::startedProcesses() const {
    return descendantsOf(command_);
}

WatchedOutcome WatchedRun::finish(double graceSeconds) {
    int status = 0;
    rusage usage{};
    wait4(command_, &status, 0, &usage);
    isRunning_ = false;
    return {.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1,
            .signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0,
            .leftProcesses = reapLeftProcesses(graceSeconds),
            .largestProcess = 1024.0 * static_cast<double>(usage.ru_maxrss),
            .output = readFile(folder_ + "/out"),
            .errors = readFile(folder_ + "/err")};
}

} // namespace orvane
