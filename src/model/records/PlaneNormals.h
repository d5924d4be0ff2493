#pragma once

#include <span>
#include <vector>

namespace orvane {

/// Every triangle's own normal, three times: `(b - a) x (c - a)` divided by its length, in doubles, then
/// narrowed; zeros where that length is 0. `positions` holds 9 numbers a triangle, and so does the result.
std::vector<float> planeNormals(std::span<const float> positions);
std::vector<float> planeNormals(std::span<const double> positions);

} // namespace orvane
