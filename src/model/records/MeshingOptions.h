#pragma once

#include <optional>

namespace orvane {

/// How curved faces of STEP files become triangles.
struct MeshingOptions {
    /// Greatest distance between a face and its triangles, in metres; nothing: 0.1 % of the part's box
    /// diagonal.
    std::optional<double> deflection;
};

} // namespace orvane
