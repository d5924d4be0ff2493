#include "geometry/UvGenerator.h"

#include "geometry/UvGenBox2.h"
#include "geometry/UvGenCylinder2.h"
#include "geometry/UvGenProjection2.h"
#include "geometry/UvGenSphere2.h"

namespace orvane {

UvGenerator makeUvGenerator(const GltfMaterial& material, const ModelBounds& bounds) {
    switch (material.mappingType) {
    case 1:
        return UvGenerator(std::make_unique<UvGenProjection2>(material, bounds));
    case 2:
        return UvGenerator(std::make_unique<UvGenSphere2>(material, bounds));
    case 3:
        return UvGenerator(std::make_unique<UvGenCylinder2>(material, bounds));
    case 4:
        return UvGenerator(std::make_unique<UvGenBox2>(material, bounds));
    default:
        return UvGenerator(nullptr);
    }
}

} // namespace orvane
