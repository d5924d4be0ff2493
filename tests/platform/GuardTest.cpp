#include "platform/Guard.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace orvane::platform {
namespace {

TEST(GuardedWork, AnswersUnlessItIsEnded) {
    const GuardedOutcome done = runGuarded([] { return std::string(5000, 'x'); }, 0);
    EXPECT_TRUE(done.isDone);
    EXPECT_EQ(done.text, std::string(4095, 'x'));
    EXPECT_TRUE(runGuarded([] { return std::string(); }, 0).isDone);

    const auto before = std::signal(SIGCHLD, SIG_IGN);
    EXPECT_TRUE(runGuarded([] { return std::string(); }, 0).isDone) << "though nobody hears of its end";
    std::signal(SIGCHLD, before);

    EXPECT_FALSE(runGuarded([]() -> std::string { throw 1; }, 0).isDone);
    EXPECT_FALSE(runGuarded([]() -> std::string { std::abort(); }, 0).isDone);
}

TEST(GuardedWork, HasAGigabyteOnTopOfWhatItIsGiven) {
    const auto takeMore = [] {
        std::vector<char>().reserve(std::size_t{1200} << 20);
        return std::string();
    };
    EXPECT_FALSE(runGuarded(takeMore, 0).isDone);
    EXPECT_TRUE(runGuarded(takeMore, std::int64_t{1} << 30).isDone);
}

TEST(GuardedWork, EndsOnSignalsThatTheProcessItselfIgnoresOrHoldsBack) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
        const auto before = std::signal(signal, SIG_IGN);
        sigset_t blocked;
        sigset_t maskBefore;
        sigemptyset(&blocked);
        sigaddset(&blocked, signal);
        pthread_sigmask(SIG_BLOCK, &blocked, &maskBefore);
        const auto work = [signal] {
            raise(signal);
            return std::string();
        };
        EXPECT_FALSE(runGuarded(work, 0).isDone) << signal;
        sigset_t maskAfter;
        pthread_sigmask(SIG_SETMASK, &maskBefore, &maskAfter);
        EXPECT_EQ(sigismember(&maskAfter, signal), 1) << "as it was";
        EXPECT_EQ(std::signal(signal, before), SIG_IGN);
    }
}

TEST(GuardedWork, EndsWithTheProcessThatWaitsForIt) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const pid_t waiting = fork();
    if (waiting == 0) {
        runGuarded(
            [&ends] {
                while (write(ends[1], "!", 1) == 1 && pause() == 0) {
                }
                return std::string();
            },
            0);
        _exit(0);
    }
    close(ends[1]);
    char begun = 0;
    EXPECT_EQ(read(ends[0], &begun, 1), 1);
    kill(waiting, SIGKILL);
    EXPECT_EQ(waitpid(waiting, nullptr, 0), waiting);
    pollfd end{ends[0], POLLIN, 0};
    EXPECT_EQ(poll(&end, 1, 10'000), 1) << "somebody still holds the pipe";
    EXPECT_EQ(end.revents, POLLHUP);
    close(ends[0]);
}

TEST(GuardedWork, SaysWhyItCannotBegin) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer opens a pipe to look at the exception";
#endif
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none{0, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    const GuardedOutcome outcome = runGuarded([] { return std::string(); }, 0);
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_FALSE(outcome.isDone);
    EXPECT_EQ(outcome.text, "no process can be started: Too many open files");
}

} // namespace
} // namespace orvane::platform
