#pragma once

#include <utility>

namespace orvane {

/// Puts something of the host back that an export has changed, when the object goes, be it with an exception
/// on its way. Never throws. An action that fails is tried once more, since the memory that it lacked may be
/// there again.
template <class Action>
class PutBack {
public:
    explicit PutBack(Action action) : action_(std::move(action)) {}
    PutBack(const PutBack&) = delete;
    PutBack& operator=(const PutBack&) = delete;
    ~PutBack() {
        if (isDue_ && !succeeds()) {
            succeeds();
        }
    }

    /// Lets the host stand as it is.
    void dismiss() noexcept { isDue_ = false; }

private:
    bool succeeds() noexcept {
        try {
            action_();
            return true;
        } catch (...) {
            return false;
        }
    }

    Action action_;
    bool isDue_ = true;
};

} // namespace orvane
