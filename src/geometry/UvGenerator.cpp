#include "geometry/UvGenerator.h"

#include "geometry/UvGenBox2.h"
#include "geometry/UvGenCylinder2.h"
#include "geometry/UvGenProjection2.h"
#include "geometry/UvGenSphere2.h"

namespace orvane::geometry {

UvGenerator makeUvGenerator(const GltfMaterial& material, const ModelBounds& bounds) {
    switch (material.mappingType) {
    case MappingType::projection:
        return UvGenerator(std::make_unique<UvGenProjection2>(material, bounds));
    case MappingType::sphere:
        return UvGenerator(std::make_unique<UvGenSphere2>(material, bounds));
    case MappingType::cylinder:
        return UvGenerator(std::make_unique<UvGenCylinder2>(material, bounds));
    case MappingType::box:
        return UvGenerator(std::make_unique<UvGenBox2>(material, bounds));
    case MappingType::automatic:
        break;
    }
    return UvGenerator(nullptr);
}

} // namespace orvane::geometry
