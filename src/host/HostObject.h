#pragma once

namespace orvane {

/// Base of every object that a host answers with. Counted by `HostRef`; used on the host's main thread only.
/// No operation throws: one that fails answers with an empty reference, an empty optional, an empty list or a
/// count of 0.
class HostObject {
public:
    HostObject(const HostObject&) = delete;
    HostObject& operator=(const HostObject&) = delete;

    void retain() noexcept { ++references_; }
    void release() noexcept {
        if (--references_ == 0) {
            delete this;
        }
    }

    /// The same pointer for every object that stands for one and the same thing of the host, a different one
    /// otherwise. A binding that wraps a host's object answers with that object's own identity. Valid as long
    /// as the host is open.
    virtual const void* identity() const noexcept { return this; }

protected:
    HostObject() = default;
    virtual ~HostObject() = default;

private:
    int references_ = 0;
};

} // namespace orvane
