#pragma once

#include "model/records/ModelRecords.h"

#include <cstddef>

/// Models for the embedded host, made in memory.
namespace orvane {

/// A part of one face with `triangles` triangles, normals and texture coordinates: 96 bytes a triangle.
Model singlePart(std::size_t triangles);

/// An assembly of `components` instances of one part of `triangles` triangles, side by side below the root.
/// Their names are all different, or all equal.
Model flatAssembly(std::size_t components, std::size_t triangles, bool equalNames = false);

/// An assembly of `components` nodes: instances of one sub-assembly of nine parts.
Model nestedAssembly(std::size_t components);

/// An assembly of `components` components in `configurations` configurations of one display state.
Model configuredAssembly(std::size_t components, std::size_t configurations);

/// A part of `faces` faces of one triangle in bodies of 20, and `appearances` appearances that share either
/// the bodies or the single faces among themselves. There may be none.
Model paintedPart(std::size_t appearances, std::size_t faces, bool onBodies);

/// An assembly of `components` components without geometry, in chains of `levels` one below the other, and a
/// motion study of `frames` frames in which each of them turns and moves relative to its parent.
Model movingAssembly(std::size_t components, std::size_t frames, std::size_t levels);

} // namespace orvane
