#include "platform/Leavings.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <mutex>
#include <sched.h>
#include <unistd.h>

namespace orvane {

namespace {

constexpr int kEndingSignals[] = {SIGINT, SIGTERM, SIGHUP};

std::atomic<int> undisturbed{0};   ///< how many such scopes are open
std::atomic<int> awaitedSignal{0}; ///< the signal that waits for them; 0: none
std::atomic<bool> isEnding{false}; ///< the leavings are being taken away
std::mutex listMutex;              ///< taken within such scopes alone, so that no handler meets it locked
Leaving* lastLeaving = nullptr;

} // namespace

void takeLeavingsAway() noexcept {
    for (const Leaving* leaving = lastLeaving; leaving; leaving = leaving->earlier_) {
        leaving->takeAway_(leaving->owner_);
    }
}

namespace {

/// Ends the process unless somebody is undisturbed, who will do it then. A scope that opens on another thread
/// meanwhile sees `isEnding`, or is seen here.
void endBySignal(int signalNumber) noexcept {
    for (;;) {
        if (isEnding.exchange(true)) {
            return;
        }
        if (undisturbed == 0) {
            break;
        }
        awaitedSignal = signalNumber;
        isEnding = false;
        if (undisturbed > 0) {
            return;
        }
    }
    takeLeavingsAway();
    std::signal(signalNumber, SIG_DFL);
    sigset_t one;
    sigemptyset(&one);
    sigaddset(&one, signalNumber);
    kill(getpid(), signalNumber);
    pthread_sigmask(SIG_UNBLOCK, &one, nullptr);
    _exit(EXIT_FAILURE); // the signal was ignored at the last moment
}

} // namespace

Undisturbed::Undisturbed() noexcept {
    ++undisturbed;
    while (isEnding) {
        sched_yield();
    }
}

Undisturbed::~Undisturbed() {
    if (--undisturbed == 0 && awaitedSignal != 0) {
        endBySignal(awaitedSignal);
    }
}

bool Undisturbed::isAwaited() noexcept {
    return awaitedSignal != 0;
}

Leaving::Leaving(void (*takeAway)(void* owner) noexcept, void* owner) noexcept
    : takeAway_(takeAway), owner_(owner) {
    const Undisturbed scope;
    const std::lock_guard lock(listMutex);
    earlier_ = lastLeaving;
    if (earlier_) {
        earlier_->later_ = this;
    }
    lastLeaving = this;
}

Leaving::~Leaving() {
    const Undisturbed scope;
    const std::lock_guard lock(listMutex);
    if (earlier_) {
        earlier_->later_ = later_;
    }
    (later_ ? later_->earlier_ : lastLeaving) = earlier_;
}

void clearUpOnSignals() {
    for (const int signalNumber : kEndingSignals) {
        struct sigaction action {};
        if (sigaction(signalNumber, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) {
            continue;
        }
        action = {};
        action.sa_handler = endBySignal;
        action.sa_flags = SA_RESTART;
        for (const int other : kEndingSignals) {
            sigaddset(&action.sa_mask, other);
        }
        sigaction(signalNumber, &action, nullptr);
    }
}

} // namespace orvane
