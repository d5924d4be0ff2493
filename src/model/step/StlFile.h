#pragma once

#include "model/records/ModelRecords.h"

#include <filesystem>

namespace orvane::step {

/// Reads an STL file, ASCII or binary, as one face of all its triangles. Its numbers are metres. Normals are
/// those of the triangles' planes, whatever the file says: many writers leave them out. There are no texture
/// coordinates. Throws `ModelError` for a file that is none, is cut off or has no triangle.
FaceRecord readStlFile(const std::filesystem::path& file);

} // namespace orvane::step
