#include "model/step/PartSize.h"

#include <Interface_EntityIterator.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_ShapeRepresentationRelationship.hxx>
#include <StepShape_BrepWithVoids.hxx>
#include <StepShape_ClosedShell.hxx>
#include <StepShape_ConnectedFaceSet.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepShape_Shell.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>

namespace orvane::step {

namespace {

using Shape = Handle(StepShape_ShapeRepresentation);

std::uint64_t facesOf(const Handle(StepShape_ConnectedFaceSet) & shell) {
    return shell.IsNull() || shell->CfsFaces().IsNull() ? 0 : static_cast<std::uint64_t>(shell->NbCfsFaces());
}

std::uint64_t facesOf(const Handle(StepRepr_RepresentationItem) & item) {
    if (const auto solid = Handle(StepShape_ManifoldSolidBrep)::DownCast(item); !solid.IsNull()) {
        return facesOf(Handle(StepShape_ConnectedFaceSet)(solid->Outer()));
    }
    std::uint64_t faces = 0;
    const auto surface = Handle(StepShape_ShellBasedSurfaceModel)::DownCast(item);
    if (!surface.IsNull() && !surface->SbsmBoundary().IsNull()) {
        for (Standard_Integer i = 1; i <= surface->NbSbsmBoundary(); ++i) {
            faces +=
                facesOf(Handle(StepShape_ConnectedFaceSet)::DownCast(surface->SbsmBoundaryValue(i).Value()));
        }
    }
    return faces;
}

std::uint64_t facesOf(const Shape& shape) {
    std::uint64_t faces = 0;
    for (Standard_Integer i = 1; !shape.IsNull() && !shape->Items().IsNull() && i <= shape->NbItems(); ++i) {
        faces += facesOf(shape->ItemsValue(i));
    }
    return faces;
}

/// Often a product's own representation holds its placement alone, and is related to that with the shape.
std::uint64_t facesOfRelated(const Shape& shape, const Interface_Graph& graph) {
    std::uint64_t faces = facesOf(shape);
    for (Interface_EntityIterator it = graph.Sharings(shape); it.More(); it.Next()) {
        if (it.Value()->DynamicType() == STANDARD_TYPE(StepRepr_ShapeRepresentationRelationship)) {
            const auto relation = Handle(StepRepr_ShapeRepresentationRelationship)::DownCast(it.Value());
            faces +=
                facesOf(Shape::DownCast(relation->Rep1() == shape ? relation->Rep2() : relation->Rep1()));
        }
    }
    return faces;
}

} // namespace

std::uint64_t faceCountOf(const Handle(Standard_Transient) & entity, const Interface_Graph& graph) {
    if (const auto shape = Shape::DownCast(entity); !shape.IsNull() || entity.IsNull()) {
        return facesOf(shape);
    }
    std::uint64_t faces = 0;
    for (Interface_EntityIterator it = graph.Sharings(entity); it.More(); it.Next()) {
        if (!it.Value()->IsKind(STANDARD_TYPE(StepRepr_ProductDefinitionShape))) {
            continue;
        }
        for (Interface_EntityIterator definitions = graph.Sharings(it.Value()); definitions.More();
             definitions.Next()) {
            const auto definition =
                Handle(StepShape_ShapeDefinitionRepresentation)::DownCast(definitions.Value());
            const Shape shape =
                definition.IsNull() ? Shape() : Shape::DownCast(definition->UsedRepresentation());
            faces += shape.IsNull() ? 0 : facesOfRelated(shape, graph);
        }
    }
    return faces;
}

} // namespace orvane::step
