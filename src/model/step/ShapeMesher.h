#pragma once

#include "model/records/ModelRecords.h"
#include "model/step/StepReader.h"

#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>

#include <string>
#include <vector>

namespace orvane::step {

/// The bodies of one part, and what each of their faces was made from.
struct PartMesh {
    struct Source {
        TopoDS_Shape shape;             ///< a solid, a shell, or the whole part for its loose faces
        std::vector<TopoDS_Face> faces; ///< in the order of the body's faces
    };
    std::vector<BodyRecord> bodies; ///< without names
    std::vector<Source> sources;    ///< one for each body
};

/// Meshes a shape in millimetres into bodies in metres: one for each solid, then one for each shell outside
/// of solids, then one for the faces outside of shells. Triangles are turned outward, and normals are those
/// of the surface. Texture coordinates are the surface's parameters as they are when its lengths are metres.
/// The shape keeps the triangulation. A face that cannot be meshed stays as one without triangles, and a line
/// about it goes to `warnings`. Several threads share the work where `inParallel` says so; the result is the
/// same.
PartMesh meshShape(const TopoDS_Shape& shape, const MeshingOptions& options, bool inParallel,
                   std::vector<std::string>& warnings);

} // namespace orvane::step
