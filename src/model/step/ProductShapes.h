#pragma once

#include <Interface_Graph.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_Representation.hxx>

#include <vector>

namespace orvane::step {

/// What a representation is the shape of, in the order of the file: products, and uses of products.
std::vector<Handle(StepRepr_ProductDefinitionShape)>
productShapesOf(const Handle(StepRepr_Representation) & representation, const Interface_Graph& graph);

} // namespace orvane::step
