#pragma once

#include "host/HostMathUtility.h"
#include "host/HostModelDoc.h"
#include "host/HostRef.h"

#include <cstdint>
#include <string>

namespace orvane {

/// The host itself. It outlives every reference to an object of its own.
class HostApplication : public HostObject {
public:
    /// The document in front; empty when none is open.
    virtual HostRef<HostModelDoc> activeDocument() = 0;
    /// Registers a name under which a client leaves marks on entities; the host may put another number into
    /// `id`.
    virtual void registerTrackingId(const std::u16string& name, std::int32_t& id) = 0;
    virtual HostRef<HostMathUtility> mathUtility() = 0;
};

} // namespace orvane
