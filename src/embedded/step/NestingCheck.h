#pragma once

#include <Interface_Graph.hxx>

#include <string>

namespace orvane {

/// Looks for what would make the kernel's reader recurse without end: products that use themselves, directly
/// or through others, and shapes, curves or surfaces that are made of themselves or nested deeper than in any
/// real file. Returns what was found, naming the entity, or an empty text.
std::string findEndlessNesting(const Interface_Graph& graph);

} // namespace orvane
