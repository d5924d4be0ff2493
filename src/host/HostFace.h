#pragma once

#include "host/HostFeature.h"
#include "host/HostObject.h"
#include "host/HostRef.h"

#include <cstdint>
#include <span>

namespace orvane {

/// A face of a body with the triangles that the host displays: three vertices a triangle, never welded, in
/// metres in the body's own frame.
class HostFace : public HostObject {
public:
    /// Sets `count` to the number of display triangles; leaves it as it is when the host fails.
    virtual void faceTriangleCount(std::int32_t& count) const = 0;
    /// Fills 9 floats a triangle in place; `noConversion` asks for metres whatever the document's units.
    /// Answers whether it filled all of them, as the two below do.
    virtual bool faceTrianglePositions(bool noConversion, std::span<float> positions) const = 0;
    /// Fills 9 floats a triangle in place: unit normals in the vertex order of the positions.
    virtual bool faceTriangleNormals(std::span<float> normals) const = 0;
    /// Fills 6 floats a triangle in place: u and v in the vertex order of the positions.
    virtual bool faceTriangleTexCoords(std::span<float> texCoords) const = 0;

    /// The feature that made the face; empty when it has none.
    virtual HostRef<HostFeature> faceOwningFeature() const = 0;

    /// The face's user value, which lasts as long as its document stays open; 0 at first.
    virtual std::int32_t readFaceMark() const = 0;
    virtual void writeFaceMark(std::int32_t mark) = 0;
};

} // namespace orvane
