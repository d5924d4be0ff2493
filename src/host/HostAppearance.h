#pragma once

#include "host/HostObject.h"
#include "host/HostRef.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// How an appearance looks, by the host's values. Colours have red in the low byte, then green, then blue.
struct AppearanceLook {
    double emission = 0;
    std::uint32_t primaryColor = 0;
    std::uint32_t secondaryColor = 0;
    std::uint32_t tertiaryColor = 0;
    double reflectivity = 0;
    double specularSpread = 0;
    double specular = 0;
    std::uint32_t specularColor = 0;
    double transparency = 0; ///< 0 opaque, 1 fully transparent
};

/// How texture coordinates come about, by the host's numbers. Hosts answer other numbers too.
enum class HostMappingType : std::int32_t {
    automatic = 0, ///< those that the host gives its triangles
    projection = 1,
    sphere = 2,
    cylinder = 3,
    box = 4
};

/// How an appearance lies on a model. Lengths are metres, angles degrees.
struct AppearanceMapping {
    HostMappingType type = HostMappingType::automatic;
    double width = 0, height = 0;
    double offsetU = 0, offsetV = 0;
    double rotation = 0;
    std::array<double, 3> center{}, uDirection{}, vDirection{};
    double sphereAngleA = 0, sphereAngleB = 0;
    std::int16_t mirrorVertical = 0, mirrorHorizontal = 0; ///< flags: 0 is false, anything else true
};

/// One appearance of a document: the same object for as long as the document is open.
class HostAppearance : public HostObject {
public:
    /// Full paths; empty when there is no such file.
    virtual std::u16string appearanceFileName() const = 0;
    virtual std::u16string bumpTextureFileName() const = 0;
    virtual std::u16string textureFileName() const = 0;

    virtual AppearanceLook readLook() const = 0;
    virtual AppearanceMapping readMapping() const = 0;

    virtual std::int32_t entityCount() const = 0;
    /// What it is applied to: documents, bodies, features, faces, components, and things of other kinds.
    virtual std::vector<HostRef<HostObject>> entities() const = 0;
};

} // namespace orvane
