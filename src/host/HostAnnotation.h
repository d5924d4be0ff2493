#pragma once

#include "host/HostObject.h"
#include "host/HostRef.h"

#include <cstdint>

namespace orvane {

/// The type of an annotation that is a table, by the host's number.
inline constexpr std::int32_t kTableAnnotation = 14;

/// An annotation of a document.
class HostAnnotation : public HostObject {
public:
    virtual std::int32_t annotationType() const = 0;
    /// What the annotation is, a `HostGeneralTable` for one; see `inRole`. Empty when the host has nothing.
    virtual HostRef<HostObject> specificAnnotation() const = 0;
};

} // namespace orvane
