#pragma once

#include "host/HostFace.h"
#include "host/HostRef.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// Kinds of bodies by the host's type codes.
inline constexpr std::int32_t kSolidBody = 0;

/// A body of a part.
class HostBody : public HostObject {
public:
    virtual std::u16string bodyName() const = 0;
    virtual std::int32_t bodyFaceCount() const = 0;
    /// At most the first `count` faces, in the host's order.
    virtual std::vector<HostRef<HostFace>> bodyFaces(std::int32_t count) const = 0;
};

/// Hands out bodies one at a time.
class HostBodyEnumerator : public HostObject {
public:
    /// The next body; empty behind the last one.
    virtual HostRef<HostBody> nextBody() = 0;
    /// Starts again with the first body.
    virtual void reset() = 0;
};

} // namespace orvane
