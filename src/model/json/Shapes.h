#pragma once

#include "model/records/ModelRecords.h"

namespace orvane::json {

/// Closed shapes as triangulated faces, one for each side, centred on the origin before `placement` is
/// applied. Lengths are metres. Triangles run counter-clockwise as seen from outside and normals point
/// outward, also under a placement that mirrors; curved sides carry their true normals. Texture coordinates
/// run from 0 to 1 over each side. `segments` (3 or more) is the number of edges of a full circle.

/// Six faces, in the order -x +x -y +y -z +z; u runs to the right and v up (+z, on the z sides +y) as seen
/// from outside.
std::vector<FaceRecord> boxFaces(const Vector3& size, const Placement& placement);

/// The side, the top (+z) and the bottom. Around z: u along the circle from +x towards +y, v upward; on the
/// end faces u and v span the circle's square.
std::vector<FaceRecord> cylinderFaces(double radius, double height, int segments, const Placement& placement);

/// One face: u along the equator from +x towards +y, v from the south pole (-z) to the north pole.
std::vector<FaceRecord> sphereFaces(double radius, int segments, const Placement& placement);

/// The side, with the apex at +z, and the bottom; texture coordinates as for a cylinder.
std::vector<FaceRecord> coneFaces(double radius, double height, int segments, const Placement& placement);

/// One face around z: `radius` from the centre to the middle of the tube, whose own radius is `tube`. u along
/// the ring from +x towards +y, v around the tube from the outside upward.
std::vector<FaceRecord> torusFaces(double radius, double tube, int segments, const Placement& placement);

} // namespace orvane::json
