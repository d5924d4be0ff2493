#pragma once

#include <concepts>
#include <utility>

namespace orvane {

/// A counted reference to a host object of role `T`, or an empty one.
/// Two references are equal when they stand for the same thing of the host, see `HostObject::identity`.
template <class T>
class HostRef {
public:
    HostRef() noexcept = default;
    explicit HostRef(T* object) noexcept : object_(object) {
        if (object_) {
            object_->retain();
        }
    }
    HostRef(const HostRef& other) noexcept : HostRef(other.object_) {}
    HostRef(HostRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    template <class U>
    requires std::convertible_to<U*, T*> HostRef(const HostRef<U>& other)
    noexcept : HostRef(other.get()) {}
    ~HostRef() {
        if (object_) {
            object_->release();
        }
    }
    HostRef& operator=(HostRef other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    T* get() const noexcept { return object_; }
    T* operator->() const noexcept { return object_; }
    T& operator*() const noexcept { return *object_; }
    explicit operator bool() const noexcept { return object_ != nullptr; }

    friend bool operator==(const HostRef& a, const HostRef& b) noexcept {
        return (a ? a->identity() : nullptr) == (b ? b->identity() : nullptr);
    }

private:
    T* object_ = nullptr;
};

/// The object in the role `T`; empty where it has another one. For objects whose kind is not known
/// beforehand.
template <class T, class U>
HostRef<T> inRole(const HostRef<U>& object) {
    return HostRef<T>(dynamic_cast<T*>(object.get()));
}

/// Makes a host object of class `T` and gives the first reference to it.
template <class T, class... Arguments>
HostRef<T> makeHostObject(Arguments&&... arguments) {
    return HostRef<T>(new T(std::forward<Arguments>(arguments)...));
}

} // namespace orvane
