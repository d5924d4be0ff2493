#pragma once

#include "host/HostObject.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

struct HostCustomProperty {
    std::u16string name;
    std::u16string value;  ///< as the host evaluates it; a number is a text too
    std::int32_t type = 0; ///< 3 number, 5 double, 11 yes or no, 30 text, 64 date
};

/// The property manager of a configuration.
class HostCustomProperties : public HostObject {
public:
    virtual std::int32_t propertyCount() const = 0;
    /// All of them in one call, in the host's order.
    virtual std::vector<HostCustomProperty> properties() const = 0;
};

} // namespace orvane
