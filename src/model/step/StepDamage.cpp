#include "model/step/StepDamage.h"

#include <Interface_Check.hxx>
#include <Interface_EntityIterator.hxx>
#include <Interface_InterfaceModel.hxx>
#include <Interface_ReportEntity.hxx>
#include <StepAP214_AppliedDocumentReference.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepBasic_ProductDefinitionRelationship.hxx>
#include <StepGeom_Axis2Placement3d.hxx>
#include <StepGeom_CartesianPoint.hxx>
#include <StepGeom_Direction.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentationRelationship.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepShape_VertexPoint.hxx>
#include <StepVisual_Invisibility.hxx>
#include <StepVisual_MechanicalDesignGeometricPresentationRepresentation.hxx>
#include <StepVisual_StyledItem.hxx>
#include <TCollection_HAsciiString.hxx>

#include <algorithm>
#include <cmath>

namespace orvane::step {

namespace {

/// A damaged file can have a fault in every line.
constexpr std::size_t kMostFaults = 10;

/// In the file's own unit.
constexpr double kFarthest = 1e12;

using Entity = Handle(Standard_Transient);

/// Where the reader starts from, itself or through what refers to something that it has reached.
bool isStart(const Entity& entity) {
    return entity->IsKind(STANDARD_TYPE(StepShape_ShapeRepresentation)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_ShapeDefinitionRepresentation)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_ContextDependentShapeRepresentation)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_RepresentationRelationship)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_ProductDefinitionShape)) ||
           entity->IsKind(STANDARD_TYPE(StepBasic_ProductDefinition)) ||
           entity->IsKind(STANDARD_TYPE(StepBasic_ProductDefinitionRelationship)) ||
           entity->IsKind(STANDARD_TYPE(StepAP214_AppliedDocumentReference)) ||
           entity->IsKind(STANDARD_TYPE(StepVisual_StyledItem)) ||
           entity->IsKind(STANDARD_TYPE(StepVisual_MechanicalDesignGeometricPresentationRepresentation)) ||
           entity->IsKind(STANDARD_TYPE(StepVisual_Invisibility));
}

/// Whether the reader comes to an entity, by the entities' numbers from 1.
std::vector<bool> findNeeded(const Interface_Graph& graph) {
    const Handle(Interface_InterfaceModel)& model = graph.Model();
    std::vector<bool> needed(static_cast<std::size_t>(model->NbEntities()) + 1, false);
    std::vector<Entity> pending;
    const auto need = [&](const Entity& entity) {
        const auto number = static_cast<std::size_t>(model->Number(entity));
        if (number != 0 && !needed[number]) {
            needed[number] = true;
            pending.push_back(entity);
        }
    };
    for (Standard_Integer i = 1; i <= model->NbEntities(); ++i) {
        if (isStart(model->Value(i))) {
            need(model->Value(i));
        }
        while (!pending.empty()) {
            const Entity entity = pending.back();
            pending.pop_back();
            for (Interface_EntityIterator it = graph.Shareds(entity); it.More(); it.Next()) {
                need(it.Value());
            }
        }
    }
    return needed;
}

bool isBeyondMeasure(const Handle(StepGeom_CartesianPoint) & point) {
    for (Standard_Integer i = 1; !point.IsNull() && i <= point->NbCoordinates(); ++i) {
        if (!(std::abs(point->CoordinatesValue(i)) <= kFarthest)) {
            return true;
        }
    }
    return false;
}

bool isSpatial(const Handle(StepGeom_CartesianPoint) & point) {
    return point.IsNull() || point->NbCoordinates() == 3;
}

bool isSpatial(bool isGiven, const Handle(StepGeom_Direction) & direction) {
    return !isGiven || direction.IsNull() || direction->NbDirectionRatios() == 3;
}

/// Points and directions of a plane stand in the same statements as those of space, and only the place that
/// they are used in tells which is wanted.
bool lacksDimension(const Entity& entity) {
    if (const auto axes = Handle(StepGeom_Axis2Placement3d)::DownCast(entity); !axes.IsNull()) {
        return !isSpatial(axes->Location()) || !isSpatial(axes->HasAxis(), axes->Axis()) ||
               !isSpatial(axes->HasRefDirection(), axes->RefDirection());
    }
    if (const auto vertex = Handle(StepShape_VertexPoint)::DownCast(entity); !vertex.IsNull()) {
        return !isSpatial(Handle(StepGeom_CartesianPoint)::DownCast(vertex->VertexGeometry()));
    }
    return false;
}

std::string firstFault(const Handle(Interface_Check) & check) {
    return check->NbFails() > 0 ? check->CFail(1) : "damaged";
}

} // namespace

Damage findDamage(const Interface_Graph& graph) {
    const Handle(Interface_InterfaceModel)& model = graph.Model();
    const std::vector<bool> needed = findNeeded(graph);
    Damage damage;
    const Handle(Interface_Check) global = model->GlobalCheck();
    for (Standard_Integer i = 1; i <= global->NbFails(); ++i) {
        damage.harmless.emplace_back(global->CFail(i));
    }
    for (Standard_Integer i = 1; i <= model->NbEntities() && damage.fatal.empty(); ++i) {
        const std::string label = model->StringLabel(model->Value(i))->ToCString();
        if (model->IsErrorEntity(i)) {
            const std::string fault = label + ' ' + firstFault(model->ReportEntity(i)->Check());
            if (needed[static_cast<std::size_t>(i)]) {
                damage.fatal = fault;
            } else {
                damage.harmless.push_back(fault);
            }
        } else if (isBeyondMeasure(Handle(StepGeom_CartesianPoint)::DownCast(model->Value(i)))) {
            damage.fatal = label + " farther away than anything is";
        } else if (lacksDimension(model->Value(i))) {
            damage.fatal = label + " of fewer than three dimensions";
        }
    }
    damage.harmless.resize(std::min(damage.harmless.size(), kMostFaults));
    return damage;
}

} // namespace orvane::step
