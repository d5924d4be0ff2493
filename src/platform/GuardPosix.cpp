#include "platform/Guard.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane::platform {

namespace {

constexpr rlim_t kOwnMemory = rlim_t{1} << 30;
constexpr rlim_t kMostSeconds = 60;
constexpr unsigned kMostSecondsByTheClock = 600;
/// Stands before what the work gave, which may be empty.
constexpr char kDone = '+';

/// Through which the child answers: at most `PIPE_BUF` bytes, which never make it wait.
struct Pipe {
    Pipe() {
        if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
            ends = {-1, -1};
        }
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    ~Pipe() {
        for (const int end : ends) {
            if (end >= 0) {
                close(end);
            }
        }
    }
    std::array<int, 2> ends{}; ///< to read from, to write to
};

/// Bytes of address space that the process has taken already: an allocator may have reserved a lot.
rlim_t addressSpaceInUse() {
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
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

/// The child holds nothing that would have to be put in order, so nothing may keep it from ending.
void endOnSignals() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE, SIGALRM, SIGXCPU}) {
        std::signal(signal, SIG_DFL);
    }
    sigset_t none;
    sigemptyset(&none);
    pthread_sigmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void runInChild(const std::function<std::string()>& work, rlim_t memory, pid_t parent,
                             int answerTo) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) {
        _exit(1); // it ended before the line above could tell
    }
    endOnSignals();
    silence();
    limitTo(RLIMIT_AS, memory);
    limitTo(RLIMIT_CPU, kMostSeconds);
    limitTo(RLIMIT_CORE, 0);
    alarm(kMostSecondsByTheClock);
    bool isTold = false;
    try {
        const std::string answer = kDone + work();
        isTold = write(answerTo, answer.data(), std::min<std::size_t>(answer.size(), PIPE_BUF)) > 0;
    } catch (...) {
        // That there is no answer says it.
    }
    _exit(isTold ? 0 : 1);
}

GuardedOutcome notBegun() {
    return {false, std::string("no process can be started: ") + std::strerror(errno)};
}

} // namespace

GuardedOutcome runGuarded(const std::function<std::string()>& work, std::int64_t memory) {
    const Pipe pipe;
    if (pipe.ends[0] < 0) {
        return notBegun();
    }
    const rlim_t mostMemory = addressSpaceInUse() + static_cast<rlim_t>(memory) + kOwnMemory;
    const pid_t parent = getpid();
    // Until the child has its own ways with signals, none may reach a handler that was made for the parent.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    const pid_t child = fork();
    if (child == 0) {
        runInChild(work, mostMemory, parent, pipe.ends[1]);
    }
    const int code = errno;
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    if (child < 0) {
        errno = code;
        return notBegun();
    }
    // Where the process ignores the ends of its children the call fails, once the child has ended.
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    std::string answer(PIPE_BUF, '\0');
    const ssize_t length = read(pipe.ends[0], answer.data(), answer.size());
    if (length < 1 || answer[0] != kDone) {
        return {};
    }
    return {true, answer.substr(1, static_cast<std::size_t>(length) - 1)};
}

} // namespace orvane::platform
