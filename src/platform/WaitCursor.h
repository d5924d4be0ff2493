#pragma once

namespace orvane {

/// The pointer that tells the person to wait. Nothing here throws.
class WaitCursor {
public:
    virtual ~WaitCursor() = default;

    /// Shows it, and keeps the pointer that was shown before.
    virtual void show() = 0;
    /// Brings the pointer back that was shown before.
    virtual void restore() = 0;
};

} // namespace orvane
