#include "platform/GuardedProcess.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <fstream>
#include <new>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace orvane::platform {

namespace {

/// Statuses of a guarded process whose work did not return.
constexpr int kThrew = 1;
constexpr int kOutOfMemory = 2;

/// Bytes of memory of its own that the process may write to, touched or not. Address space would say less: an
/// allocator may reserve a lot for each thread.
rlim_t ownMemory() {
    std::array<rlim_t, 6> pages{};
    std::ifstream statistics("/proc/self/statm");
    for (rlim_t& field : pages) {
        statistics >> field;
    }
    return pages.back() * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

void limitTo(__rlimit_resource resource, rlim_t most) {
    rlimit limit{};
    getrlimit(resource, &limit);
    limit.rlim_cur = limit.rlim_max < most ? limit.rlim_max : most;
    setrlimit(resource, &limit);
}

/// Damage is told by the answer alone. Where the process was started without an output, a file of its own may
/// have taken that number; those are all closed on exec, and outputs are not.
void silence() {
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    for (const int output : {STDOUT_FILENO, STDERR_FILENO}) {
        if ((fcntl(output, F_GETFD) & FD_CLOEXEC) == 0) {
            dup2(nowhere, output);
        }
    }
}

/// The process holds nothing that would have to be put in order, so nothing may keep it from ending.
void endOnSignals() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE, SIGALRM, SIGXCPU}) {
        std::signal(signal, SIG_DFL);
    }
    sigset_t none;
    sigemptyset(&none);
    pthread_sigmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void runInChild(const std::function<void()>& work, const GuardLimits& limits, rlim_t memory,
                             pid_t parent) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) {
        _exit(kThrew); // it ended before the line above could tell
    }
    endOnSignals();
    silence();
    limitTo(RLIMIT_DATA, memory);
    limitTo(RLIMIT_CPU, limits.processorSeconds);
    limitTo(RLIMIT_CORE, 0);
    alarm(limits.clockSeconds);
    int status = kThrew;
    try {
        work();
        status = 0;
    } catch (const std::bad_alloc&) {
        status = kOutOfMemory;
    } catch (...) {
        // The status says it.
    }
    _exit(status);
}

std::string seconds(std::uint32_t count) {
    return std::to_string(count) + (count == 1 ? " second" : " seconds");
}

GuardedEnd endOf(int status, const GuardLimits& limits) {
    const std::string memory = shownBytes(limits.memory) + " of memory";
    if (WIFEXITED(status)) {
        const int code = WEXITSTATUS(status);
        return {code == 0, code == kOutOfMemory ? "needed more than " + memory : (code == 0 ? "" : "failed")};
    }
    switch (const int signal = WTERMSIG(status)) {
    case SIGXCPU:
        return {false, "took more than " + seconds(limits.processorSeconds) + " of processor time"};
    case SIGALRM:
        return {false, "took more than " + seconds(limits.clockSeconds)};
    case SIGABRT:
        return {false, "gave up, perhaps for want of memory (it may take " + memory + ")"};
    case SIGKILL:
        return {false, "was ended from outside"};
    default:
        return {false, "crashed (" + std::string(strsignal(signal)) + ")"};
    }
}

} // namespace

GuardedProcess::GuardedProcess(const std::function<void()>& work, const GuardLimits& limits)
    : limits_(limits) {
    const rlim_t mostMemory = ownMemory() + static_cast<rlim_t>(limits.memory);
    const pid_t parent = getpid();
    // Until the child has its own ways with signals, none may reach a handler that was made for the parent.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    const pid_t child = fork();
    if (child == 0) {
        runInChild(work, limits, mostMemory, parent);
    }
    const int code = errno;
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    if (child < 0) {
        throw std::system_error(code, std::generic_category(), "no process can be started");
    }
    id_ = child;
}

GuardedProcess::GuardedProcess(GuardedProcess&& other) noexcept
    : id_(std::exchange(other.id_, 0)), limits_(other.limits_) {}

GuardedProcess& GuardedProcess::operator=(GuardedProcess&& other) noexcept {
    std::swap(id_, other.id_);
    std::swap(limits_, other.limits_);
    return *this;
}

GuardedProcess::~GuardedProcess() {
    if (id_ != 0) {
        kill(static_cast<pid_t>(id_), SIGKILL);
        wait();
    }
}

GuardedEnd GuardedProcess::wait() {
    const auto id = static_cast<pid_t>(std::exchange(id_, 0));
    int status = 0;
    // Where the process ignores the ends of its children the call fails, once the child has ended.
    pid_t ended = -1;
    while ((ended = waitpid(id, &status, 0)) < 0 && errno == EINTR) {
    }
    return ended == id ? endOf(status, limits_) : GuardedEnd{false, "ended"};
}

std::size_t GuardedProcess::waitForAny(std::span<GuardedProcess> processes) {
    for (;;) {
        siginfo_t info{};
        if (waitid(P_ALL, 0, &info, WEXITED | WNOWAIT) != 0 && errno != EINTR) {
            return 0;
        }
        const auto ended = std::ranges::find(processes, info.si_pid, &GuardedProcess::id);
        if (ended != processes.end()) {
            return static_cast<std::size_t>(ended - processes.begin());
        }
        waitpid(info.si_pid, nullptr, 0); // somebody else's, who does not wait for it
    }
}

void renewProcessorTime(std::uint32_t seconds) {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    limitTo(RLIMIT_CPU, static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec + 1) + seconds);
}

std::string shownBytes(std::int64_t bytes) {
    std::array<char, 32> text{};
    const double mebi = static_cast<double>(bytes) / (1 << 20);
    const bool isLarge = mebi >= 1024;
    std::snprintf(text.data(), text.size(), isLarge ? "%.1f GiB" : "%.0f MiB", isLarge ? mebi / 1024 : mebi);
    return text.data();
}

std::int64_t machineMemory() {
    const auto machine = static_cast<std::int64_t>(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE);
    std::int64_t group = 0;
    return std::ifstream("/sys/fs/cgroup/memory.max") >> group && group > 0 ? std::min(machine, group)
                                                                            : machine;
}

} // namespace orvane::platform
