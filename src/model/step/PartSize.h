#pragma once

#include <Interface_Graph.hxx>

#include <cstdint>

namespace orvane::step {

/// How many faces the shells of a product, or of a representation, have: a measure of what it costs to
/// transfer and mesh it. What is found in unusual ways does not count.
std::uint64_t faceCountOf(const Handle(Standard_Transient) & entity, const Interface_Graph& graph);

} // namespace orvane::step
