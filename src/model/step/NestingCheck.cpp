#include "model/step/NestingCheck.h"

#include "model/records/InstanceTree.h"

#include <Interface_EntityIterator.hxx>
#include <Interface_InterfaceModel.hxx>
#include <STEPConstruct_Assembly.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepRepr_CharacterizedDefinition.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepRepr_RepresentationMap.hxx>
#include <StepRepr_RepresentedDefinition.hxx>
#include <StepRepr_ShapeRepresentationRelationship.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <TCollection_HAsciiString.hxx>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace orvane::step {

namespace {

// Real files stay below 50; the kernel takes some hundred bytes of stack a level.
constexpr std::uint32_t kDeepest = 1000;

// Entities are told by their number in the model, from 1.
using Entity = Standard_Integer;

bool isGeometry(const Handle(Standard_Transient) & entity) {
    return entity->IsKind(STANDARD_TYPE(StepRepr_RepresentationItem)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_Representation)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_RepresentationMap));
}

Handle(StepBasic_ProductDefinition)
    productOf(const Handle(StepRepr_Representation) & shape, const Interface_Graph& graph) {
    for (Interface_EntityIterator it = graph.Sharings(shape); it.More(); it.Next()) {
        const auto definition = Handle(StepShape_ShapeDefinitionRepresentation)::DownCast(it.Value());
        const auto productShape = definition.IsNull() ? Handle(StepRepr_ProductDefinitionShape)()
                                                      : Handle(StepRepr_ProductDefinitionShape)::DownCast(
                                                            definition->Definition().PropertyDefinition());
        if (!productShape.IsNull() && !productShape->Definition().ProductDefinition().IsNull()) {
            return productShape->Definition().ProductDefinition();
        }
    }
    return {};
}

struct Use {
    Handle(StepBasic_ProductDefinition) parent;
    Handle(StepBasic_ProductDefinition) child;
};

// A usage names the product, but the kernel goes by the shape that the usage's own placement names.
Use placedUse(const Handle(StepShape_ContextDependentShapeRepresentation) & placed,
              const Interface_Graph& graph) {
    const Handle(StepRepr_ProductDefinitionShape) productShape = placed->RepresentedProductRelation();
    const Handle(StepRepr_RepresentationRelationship) shapes = placed->RepresentationRelation();
    if (productShape.IsNull() || shapes.IsNull()) {
        return {};
    }
    const auto usage = Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(
        productShape->Definition().ProductDefinitionRelationship());
    if (usage.IsNull()) {
        return {};
    }
    const bool reversed = STEPConstruct_Assembly::CheckSRRReversesNAUO(graph, placed);
    const Handle(StepBasic_ProductDefinition) child =
        productOf(reversed ? shapes->Rep2() : shapes->Rep1(), graph);
    return child == usage->RelatedProductDefinition() ? Use()
                                                      : Use{usage->RelatingProductDefinition(), child};
}

// For each entity those that the reader descends into from it.
std::vector<std::vector<Entity>> descents(const Interface_Graph& graph) {
    const Handle(Interface_InterfaceModel)& model = graph.Model();
    std::vector<std::vector<Entity>> children(static_cast<std::size_t>(model->NbEntities()) + 1);
    for (Entity number = 1; number <= model->NbEntities(); ++number) {
        const Handle(Standard_Transient) entity = model->Value(number);
        Use use;
        if (const auto usage = Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(entity);
            !usage.IsNull()) {
            use = {usage->RelatingProductDefinition(), usage->RelatedProductDefinition()};
        } else if (const auto placed =
                       Handle(StepShape_ContextDependentShapeRepresentation)::DownCast(entity);
                   !placed.IsNull()) {
            use = placedUse(placed, graph);
        } else if (isGeometry(entity)) {
            for (Interface_EntityIterator it = graph.Shareds(entity); it.More(); it.Next()) {
                if (isGeometry(it.Value())) {
                    children[static_cast<std::size_t>(number)].push_back(model->Number(it.Value()));
                }
            }
        }
        const Entity parent = use.parent.IsNull() ? 0 : model->Number(use.parent);
        const Entity child = use.child.IsNull() ? 0 : model->Number(use.child);
        if (parent > 0 && child > 0) {
            children[static_cast<std::size_t>(parent)].push_back(child);
        }
    }
    return children;
}

} // namespace

std::string findEndlessNesting(const Interface_Graph& graph) {
    enum class State : std::uint8_t { unseen, open, done };
    struct Step {
        std::size_t entity;
        std::size_t nextChild;
    };
    const std::vector<std::vector<Entity>> children = descents(graph);
    std::vector<State> states(children.size(), State::unseen);
    std::vector<std::uint32_t> heights(children.size(), 0); // levels below an entity that is done
    std::vector<std::uint64_t> components(children.size(),
                                          0); // in the whole tree below a product that is done
    std::vector<Step> path;
    const auto label = [&](std::size_t entity) {
        const Handle(Standard_Transient) value = graph.Model()->Value(static_cast<Entity>(entity));
        return std::string(graph.Model()->StringLabel(value)->ToCString());
    };
    const auto isProduct = [&](std::size_t entity) {
        return graph.Model()
            ->Value(static_cast<Entity>(entity))
            ->IsKind(STANDARD_TYPE(StepBasic_ProductDefinition));
    };
    for (std::size_t root = 1; root < children.size(); ++root) {
        if (states[root] != State::unseen) {
            continue;
        }
        path.push_back({root, 0});
        states[root] = State::open;
        while (!path.empty()) {
            Step& step = path.back();
            const std::size_t entity = step.entity;
            if (step.nextChild == children[entity].size()) {
                states[entity] = State::done;
                path.pop_back();
                for (const Entity child : children[entity]) {
                    heights[entity] = std::max(heights[entity], heights[static_cast<std::size_t>(child)] + 1);
                    components[entity] += components[static_cast<std::size_t>(child)] + 1;
                }
                if (isProduct(entity) && components[entity] > kMostComponents) {
                    return label(entity) + " has more than " + std::to_string(kMostComponents) +
                           " components";
                }
                components[entity] =
                    std::min(components[entity], kMostComponents); // shapes may well have more
                continue;
            }
            const auto child = static_cast<std::size_t>(children[entity][step.nextChild++]);
            if (states[child] == State::open) {
                return label(child) + " holds itself";
            }
            if (states[child] == State::unseen) {
                states[child] = State::open;
                path.push_back({child, 0});
            }
            if (path.size() + heights[child] > kDeepest) {
                return label(child) + " is nested deeper than " + std::to_string(kDeepest) + " levels";
            }
        }
    }
    return {};
}

} // namespace orvane::step
