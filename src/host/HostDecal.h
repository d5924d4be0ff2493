#pragma once

#include "host/HostAppearance.h"
#include "host/HostRef.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// A picture stuck on components.
class HostDecal : public HostObject {
public:
    virtual std::int32_t decalId() const = 0;
    /// Full path of the mask picture; empty when there is none.
    virtual std::u16string maskFileName() const = 0;
    /// A flag: 0 is false, anything else true.
    virtual std::int16_t maskInvert() const = 0;
    virtual std::int32_t idCount() const = 0;
    virtual std::vector<std::int32_t> ids() const = 0;
    /// Its picture, and the entities that it is stuck on; empty when the host gives none.
    virtual HostRef<HostAppearance> appearance() const = 0;
};

} // namespace orvane
