#include "model/step/ProductShapes.h"

#include <Interface_EntityIterator.hxx>
#include <StepRepr_RepresentedDefinition.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>

namespace orvane::step {

std::vector<Handle(StepRepr_ProductDefinitionShape)>
productShapesOf(const Handle(StepRepr_Representation) & representation, const Interface_Graph& graph) {
    std::vector<Handle(StepRepr_ProductDefinitionShape)> found;
    for (Interface_EntityIterator it = graph.Sharings(representation); it.More(); it.Next()) {
        const auto definition = Handle(StepShape_ShapeDefinitionRepresentation)::DownCast(it.Value());
        if (definition.IsNull()) {
            continue;
        }
        const auto productShape =
            Handle(StepRepr_ProductDefinitionShape)::DownCast(definition->Definition().PropertyDefinition());
        if (!productShape.IsNull()) {
            found.push_back(productShape);
        }
    }
    return found;
}

} // namespace orvane::step
