#include "faults/FaultyRun.h"

#include "cli/Command.h"
#include "support/RefusedAllocation.h"
#include "support/TemporaryFolder.h"

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <iterator>
#include <new>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane {

namespace {

/// What the command and the processes that it starts count together.
struct Shared {
    std::atomic<int> calls{0};
    std::atomic<int> kind{-1}; ///< of the call that met the fault
    std::atomic<bool> wasRefused{false};
    std::atomic<bool> leaksFiles{false};
    PlannedFault plan;
    pid_t command = 0;
};

Shared& shared() {
    static Shared& memory = *new (
        mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)) Shared;
    return memory;
}

platform::FileFault meetFault(platform::FileCall call) {
    Shared& run = shared();
    const int number = ++run.calls;
    const auto kind = static_cast<int>(call);
    if (number == run.plan.call) {
        run.kind = kind;
        if (run.plan.signal != 0) {
            kill(run.command, run.plan.signal);
        }
        return run.plan.fault;
    }
    return run.plan.isForGood && number > run.plan.call && run.kind == kind ? run.plan.fault
                                                                            : platform::FileFault::none;
}

std::ptrdiff_t openFileCount() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

void redirect(int descriptor, const std::string& path) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(file, descriptor);
    close(file);
}

/// In the process that becomes the command.
[[noreturn]] void runCommandOnly(std::vector<std::string> arguments, const TemporaryFolder& streams) {
    redirect(STDOUT_FILENO, streams / "out");
    redirect(STDERR_FILENO, streams / "err");
    std::vector<char*> argv;
    for (std::string& argument : arguments) {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    const std::ptrdiff_t openBefore = openFileCount();
    shared().command = getpid();
    int status = 0;
    {
        const RefusedAllocation refusal(shared().plan.refusedMemory);
        platform::fileCallListener = meetFault;
        status = cli::runCommand(static_cast<int>(arguments.size()), argv.data());
        platform::fileCallListener = nullptr;
        shared().wasRefused = refusal.happened();
    }
    shared().leaksFiles = openFileCount() != openBefore;
    _exit(status);
}

} // namespace

FaultyOutcome runFaulty(const std::vector<std::string>& arguments, const PlannedFault& fault) {
    const TemporaryFolder streams;
    Shared& run = *new (&shared()) Shared;
    run.plan = fault;
    const pid_t child = fork();
    if (child == 0) {
        runCommandOnly(arguments, streams);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return {.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1,
            .signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0,
            .calls = run.calls,
            .wasRefused = run.wasRefused,
            .leaksFiles = run.leaksFiles,
            .output = readFile(streams / "out"),
            .errors = readFile(streams / "err")};
}

} // namespace orvane
