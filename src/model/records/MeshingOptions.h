#pragma once

#include <optional>
#include <variant>

namespace orvane {

/// A length in metres.
struct Metres {
    double value = 0;
};

/// A share of the diagonal of a part's box: 0.001 is 0.1 %.
struct ShareOfBox {
    double value = 0;
};

/// Greatest distance between a face and its triangles.
using Deflection = std::variant<ShareOfBox, Metres>;

/// How curved faces of STEP files become triangles.
struct MeshingOptions {
    Deflection deflection = ShareOfBox{0.001};
    double angle = 20; ///< greatest angle between neighbouring pieces of a curve or surface, in degrees
    /// Whether the values above were chosen by a person, who may want to wait for a result that takes long.
    bool isChosen = false;
};

} // namespace orvane
