#pragma once

#include "geometry/UvGenBase2.h"

#include <memory>
#include <utility>

namespace orvane::geometry {

/// The generator of a material's mapping, or none.
class UvGenerator {
public:
    explicit UvGenerator(std::unique_ptr<const UvGenBase2> generator) : generator_(std::move(generator)) {}

    /// As `UvGenBase2::generate`; leaves `out` as it was where there is no generator.
    void generate(FloatVector position, FloatVector normal, FloatVector& out) const {
        if (generator_) {
            generator_->generate(position, normal, out);
        }
    }

private:
    std::unique_ptr<const UvGenBase2> generator_;
};

/// The generator for a material's mapping, none where it has no mapping of its own. The material outlives the
/// result; of the bounds a copy is taken. Allocates no more than the one generator.
UvGenerator makeUvGenerator(const GltfMaterial& material, const ModelBounds& bounds);

} // namespace orvane::geometry
