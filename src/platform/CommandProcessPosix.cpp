#include "platform/CommandProcess.h"

#include "platform/Leavings.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace orvane {

namespace {

/// Opened the wrong way round, so that nothing said is lost without a fault. The lowest free number is taken,
/// so they are opened in order.
void openIfClosed(int descriptor) {
    if (fcntl(descriptor, F_GETFD) < 0 && errno == EBADF) {
        open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

} // namespace

void settleCommandProcess() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        openIfClosed(descriptor);
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    clearUpOnSignals();
}

} // namespace orvane
