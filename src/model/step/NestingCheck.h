#pragma once

#include <Interface_Graph.hxx>

#include <cstddef>
#include <string>

namespace orvane::step {

/// Levels of products, and of shapes. Real files stay below 50; the kernel takes some hundred bytes of stack
/// a level.
inline constexpr std::size_t kDeepestNesting = 1000;

/// Looks for what would make the kernel's reader recurse without end or for days: products that use
/// themselves, directly or through others, shapes, curves or surfaces that are made of themselves or nested
/// deeper than `kDeepestNesting`, and products whose whole tree has more than `kMostComponents` components.
/// Nothing is expanded to find that. Returns what was found, naming the entity, or an empty text.
std::string findEndlessNesting(const Interface_Graph& graph);

} // namespace orvane::step
