#pragma once

#include <Interface_Graph.hxx>

#include <string>
#include <vector>

namespace orvane::step {

/// What is wrong with the statements of a parsed file.
struct Damage {
    std::string fatal; ///< the first damaged statement that a shape, product or style needs; else empty
    std::vector<std::string> harmless; ///< statements that nothing shown needs, the first few of them
};

/// Finds statements that the kernel could not read as their type demands. It goes on with nothing in the
/// place of what is missing, and crashes when a shape needs that; numbers beyond measure keep it busy for
/// ever.
Damage findDamage(const Interface_Graph& graph);

} // namespace orvane::step
