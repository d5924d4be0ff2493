#pragma once

#include "geometry/ModelBounds.h"
#include "geometry/UvPlane.h"

namespace orvane::geometry {

/// Gives the vertices of a face texture coordinates by where they lie. Made once for a face; the material
/// outlives it.
class UvGenBase2 {
public:
    UvGenBase2(const UvGenBase2&) = delete;
    UvGenBase2& operator=(const UvGenBase2&) = delete;

    /// Puts u and v of a vertex into `out.x` and `out.y`. Position in metres, normal of unit length, both in
    /// the body's own frame. A picture of width or height 0 gives infinities or NaN. Allocates nothing.
    virtual void generate(FloatVector position, FloatVector normal, FloatVector& out) const = 0;
    virtual ~UvGenBase2() = default;

protected:
    UvGenBase2(const GltfMaterial& material, const ModelBounds& bounds);

    /// Puts u and v of a point on a plane into `out`.
    void applyPlane(const UvPlane& plane, FloatVector position, FloatVector& out) const;

    /// The angle of the point (x, y) around the origin as a share of the full turn, from 0 to 1, with 0.5
    /// along positive x. The origin itself has what the signs of its zeros give: 0, 0.5 or 1.
    static float shareOfTurn(float y, float x);

    /// Turns the pair of `out.x` and `out.y`.
    static void rotate(FloatVector& out, float cosine, float sine);

    const GltfMaterial* material_;
    float scale_; ///< the model's largest extent, metres
    float signU_; ///< -1 where the mapping is mirrored in its horizontal direction
    float signV_; ///< -1 where it is mirrored in its vertical direction
};

} // namespace orvane::geometry
