#pragma once

#include <string>
#include <vector>

namespace orvane::step_damage {

/// A model of one STEP file or of several.
struct SourceModel {
    struct File {
        std::string name;
        std::string bytes;
    };
    std::vector<File> files; ///< the first one is exported
};

/// Small models that together have what STEP files have: planes, cylinders, cones, spheres, tori, splines,
/// swept and revolved faces, colours, transparency, products in products, files that refer to files.
std::vector<SourceModel> makeSourceModels();

} // namespace orvane::step_damage
