#include "model/step/NestingCheck.h"

#include "model/records/InstanceTree.h"
#include "model/step/ProductShapes.h"

#include <Interface_EntityIterator.hxx>
#include <Interface_InterfaceModel.hxx>
#include <STEPConstruct_Assembly.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepRepr_CharacterizedDefinition.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepRepr_RepresentationMap.hxx>
#include <StepRepr_ShapeRepresentationRelationship.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>
#include <TCollection_HAsciiString.hxx>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace orvane::step {

namespace {

/// Entities are told by their number in the model, from 1.
using EntityNumber = Standard_Integer;

bool isGeometry(const Handle(Standard_Transient) & entity) {
    return entity->IsKind(STANDARD_TYPE(StepRepr_RepresentationItem)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_Representation)) ||
           entity->IsKind(STANDARD_TYPE(StepRepr_RepresentationMap));
}

Handle(StepBasic_ProductDefinition)
    productShapedBy(const Handle(StepRepr_Representation) & shape, const Interface_Graph& graph) {
    for (const auto& productShape : productShapesOf(shape, graph)) {
        if (!productShape->Definition().ProductDefinition().IsNull()) {
            return productShape->Definition().ProductDefinition();
        }
    }
    return {};
}

struct Use {
    Handle(StepBasic_ProductDefinition) parent;
    Handle(StepBasic_ProductDefinition) child;
};

/// A usage names the product, but the kernel goes by the shape that the usage's own placement names.
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
    const bool isReversed = STEPConstruct_Assembly::CheckSRRReversesNAUO(graph, placed);
    const Handle(StepBasic_ProductDefinition) child =
        productShapedBy(isReversed ? shapes->Rep2() : shapes->Rep1(), graph);
    return child == usage->RelatedProductDefinition() ? Use()
                                                      : Use{usage->RelatingProductDefinition(), child};
}

/// For each entity those that the reader descends into from it.
std::vector<std::vector<EntityNumber>> descents(const Interface_Graph& graph) {
    const Handle(Interface_InterfaceModel)& model = graph.Model();
    std::vector<std::vector<EntityNumber>> children(static_cast<std::size_t>(model->NbEntities()) + 1);
    for (EntityNumber number = 1; number <= model->NbEntities(); ++number) {
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
        const EntityNumber parent = use.parent.IsNull() ? 0 : model->Number(use.parent);
        const EntityNumber child = use.child.IsNull() ? 0 : model->Number(use.child);
        if (parent > 0 && child > 0) {
            children[static_cast<std::size_t>(parent)].push_back(child);
        }
    }
    return children;
}

/// Goes through all that the reader would descend into, each entity once, without calling itself.
class NestingWalk {
public:
    explicit NestingWalk(const Interface_Graph& graph)
        : model_(graph.Model()), children_(descents(graph)), states_(children_.size(), State::unseen),
          heights_(children_.size(), 0), components_(children_.size(), 0) {}

    /// The first fault of the whole file, or an empty text.
    std::string findFault() {
        std::string fault;
        for (std::size_t root = 1; root < children_.size() && fault.empty(); ++root) {
            if (states_[root] == State::unseen) {
                open(root);
            }
            while (!way_.empty() && fault.empty()) {
                const bool isDone = way_.back().nextChild == children_[way_.back().entity].size();
                fault = isDone ? close() : descend();
            }
        }
        return fault;
    }

private:
    enum class State : std::uint8_t { unseen, open, done };
    struct Step {
        std::size_t entity;
        std::size_t nextChild;
    };

    void open(std::size_t entity) {
        states_[entity] = State::open;
        way_.push_back({entity, 0});
    }

    /// Takes the next step down from the last entity of the way.
    std::string descend() {
        Step& step = way_.back();
        const auto child = static_cast<std::size_t>(children_[step.entity][step.nextChild++]);
        if (states_[child] == State::open) {
            return label(child) + " holds itself";
        }
        if (states_[child] == State::unseen) {
            open(child);
        }
        if (way_.size() + heights_[child] > kDeepestNesting) {
            return label(child) + " is nested deeper than " + std::to_string(kDeepestNesting) + " levels";
        }
        return {};
    }

    /// Leaves the last entity of the way, all of whose children are done.
    std::string close() {
        const std::size_t entity = way_.back().entity;
        way_.pop_back();
        states_[entity] = State::done;
        std::uint64_t components = 0;
        for (const EntityNumber number : children_[entity]) {
            const auto child = static_cast<std::size_t>(number);
            heights_[entity] = std::max(heights_[entity], heights_[child] + 1);
            components += components_[child] + 1;
        }
        components_[entity] = std::min(components, kMostComponents); // shapes may well have more
        const bool isProduct = value(entity)->IsKind(STANDARD_TYPE(StepBasic_ProductDefinition));
        return isProduct && components > kMostComponents
                   ? label(entity) + " has more than " + std::to_string(kMostComponents) + " components"
                   : std::string();
    }

    Handle(Standard_Transient) value(std::size_t entity) const {
        return model_->Value(static_cast<EntityNumber>(entity));
    }
    std::string label(std::size_t entity) const { return model_->StringLabel(value(entity))->ToCString(); }

    Handle(Interface_InterfaceModel) model_;
    std::vector<std::vector<EntityNumber>> children_; ///< by entity, as what follows
    std::vector<State> states_;
    std::vector<std::uint32_t> heights_;    ///< levels below an entity that is done
    std::vector<std::uint64_t> components_; ///< in the whole tree below a product that is done
    std::vector<Step> way_;                 ///< the entities that are open, from a root down
};

} // namespace

std::string findEndlessNesting(const Interface_Graph& graph) {
    return NestingWalk(graph).findFault();
}

} // namespace orvane::step
