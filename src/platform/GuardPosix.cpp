#include "platform/Guard.h"

#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane::platform {

namespace {

constexpr rlim_t kMostMemory = rlim_t{1} << 30;
constexpr rlim_t kMostSeconds = 60;

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

/// Damage is told by the status alone.
void silence() {
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
}

} // namespace

int runGuarded(const std::function<int()>& work, int failed) {
    const rlim_t inUse = addressSpaceInUse();
    const pid_t child = fork();
    if (child < 0) {
        return failed;
    }
    if (child == 0) {
        silence();
        limitTo(RLIMIT_AS, inUse + kMostMemory);
        limitTo(RLIMIT_CPU, kMostSeconds);
        limitTo(RLIMIT_CORE, 0);
        int status = failed;
        try {
            status = work();
        } catch (...) {
            // The status says it.
        }
        _exit(status);
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            return failed;
        }
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : failed;
}

} // namespace orvane::platform
