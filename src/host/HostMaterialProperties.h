#pragma once

#include "host/HostObject.h"

#include <cstdint>

namespace orvane {

/// The values of an entity's own material, which go before those of its appearance.
struct MaterialPropertyValues {
    std::int16_t blurry = 0;          ///< the host's flag; only all bits set counts as true
    std::uint32_t l_primaryColor = 0; ///< red in the low byte, then green, then blue
    double a_diffuse = 0;
    double a_emission = 0;
    double a_reflectivity = 0;
    double a_specular = 0;
    std::uint32_t l_specularColor = 0;
    double a_specularSpread = 0;
    double a_transparency = 0;
};

class HostMaterialProperties : public HostObject {
public:
    virtual MaterialPropertyValues readValues() const = 0;
};

} // namespace orvane
