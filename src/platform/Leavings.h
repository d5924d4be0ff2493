#pragma once

/// What stands on the disk on the way to a result, and goes again when a signal ends the process before its
/// time. Destructors do that for every other end.
namespace orvane {

/// As long as one lives, a signal that is to end the process waits. Whoever puts something on the disk that
/// may have to go again, or takes note of it, does so within one. They nest.
class Undisturbed {
public:
    Undisturbed() noexcept;
    Undisturbed(const Undisturbed&) = delete;
    Undisturbed& operator=(const Undisturbed&) = delete;
    ~Undisturbed();

    /// Whether a signal waits for the end of this.
    static bool isAwaited() noexcept;
};

/// An object that takes away what it has left on the disk when a signal ends the process. Its owner declares
/// it last of its members, so that it goes first.
class Leaving {
public:
    /// `takeAway` gets `owner`, after everything that became a leaving later was taken away. It runs inside
    /// of a signal handler: it only calls the system.
    Leaving(void (*takeAway)(void* owner) noexcept, void* owner) noexcept;
    Leaving(const Leaving&) = delete;
    Leaving& operator=(const Leaving&) = delete;
    ~Leaving();

private:
    friend void takeLeavingsAway() noexcept;

    void (*takeAway_)(void*) noexcept;
    void* owner_;
    Leaving* earlier_;
    Leaving* later_ = nullptr;
};

/// From now on, signals by which a person or the system ends a process (on Linux INT, TERM and HUP, but for
/// those that the process was told to ignore) take the leavings away first, and then end it as they would
/// have. For a program that owns its process, once.
void clearUpOnSignals();

} // namespace orvane
