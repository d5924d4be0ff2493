#pragma once

#include "model/records/ModelRecords.h"

#include <TopoDS_Face.hxx>

#include <optional>

namespace orvane::step {

/// The triangles of one face in metres, as its orientation turns them.
struct FaceTriangles {
    FaceRecord record;
    double volume = 0; ///< six times the signed volume between the triangles and the origin, in cubic metres
};

/// Takes the triangulation that a mesher left on `face`; nothing where there is none.
std::optional<FaceTriangles> readFaceTriangles(const TopoDS_Face& face);

/// Turns a face's triangles over, and its normals.
void turnOver(FaceRecord& face);

} // namespace orvane::step
