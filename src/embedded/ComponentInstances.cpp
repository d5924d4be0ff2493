#include "embedded/ComponentInstances.h"

#include "embedded/PlacementMath.h"
#include "model/records/InstanceTree.h"

#include <algorithm>

namespace orvane::embedded {

const DisplayStateRecord* firstDisplayState(const ConfigurationRecord& configuration) {
    return configuration.displayStates.empty() ? nullptr : &configuration.displayStates.front();
}

const Placement& ComponentInstance::restPlacement() const {
    if (const Placement* shown = shownPlacement()) {
        return *shown;
    }
    return component && component->placementFallback ? *component->placementFallback : kIdentityPlacement;
}

ComponentInstances::ComponentInstances(const ModelDocument& document) {
    ComponentInstance& root = instances_.emplace_back();
    root.id = document.root.id;
    root.placement = &document.root.placement;
    root.fullName = document.root.name;
    addChildren(0, document, document.components);
    instances_.front().end = count();
    base_.reserve(instances_.size());
    for (const ComponentInstance& instance : instances_) {
        base_.push_back({instance.suppressed, instance.hidden, instance.placement});
    }
}

void ComponentInstances::addChildren(std::int32_t parent, const ModelDocument& holder,
                                     const std::vector<ComponentRecord>& components) {
    const std::u16string prefix = parent == 0 ? std::u16string() : at(parent).fullName + u"/";
    at(parent).childCount = static_cast<std::int32_t>(components.size());
    std::int32_t previous = -1;
    for (const ComponentRecord& record : components) {
        const auto position = count();
        ComponentInstance& instance = instances_.emplace_back();
        instance.component = &record;
        instance.holder = &holder;
        instance.parent = parent;
        instance.id = record.id.value_or(position); // depth first from 1 on, the root being 0
        instance.state = record.state;
        instance.suppressed = record.suppressed;
        instance.hidden = record.hidden;
        instance.placement = record.placement ? &*record.placement : nullptr;
        instance.fullName = prefix + record.name;
        positionsByName_.emplace(instance.fullName, position);
        (previous < 0 ? at(parent).firstChild : at(previous).nextSibling) = position;
        previous = position;
        if (const std::vector<ComponentRecord>* children = childrenOf(record)) {
            addChildren(position, record.components ? holder : *record.document, *children);
        }
        at(position).end = count();
        if (!record.components && record.document && record.document->kind == DocumentKind::assembly) {
            const ConfigurationRecord& active =
                record.document->configurations[record.document->activeConfiguration];
            applyBelow(position, active, firstDisplayState(active));
        }
    }
}

std::int32_t ComponentInstances::find(const std::u16string& fullName) const {
    std::int32_t first = -1;
    const auto [begin, end] = positionsByName_.equal_range(fullName);
    for (auto found = begin; found != end; ++found) {
        first = first < 0 ? found->second : std::min(first, found->second);
    }
    return first;
}

std::vector<std::int32_t> ComponentInstances::findAll(const std::u16string& fullName) const {
    std::vector<std::int32_t> positions;
    const auto [begin, end] = positionsByName_.equal_range(fullName);
    for (auto found = begin; found != end; ++found) {
        positions.push_back(found->second);
    }
    std::ranges::sort(positions);
    return positions;
}

Placement ComponentInstances::inRootSpace(std::int32_t position, Placement placement) const {
    for (std::int32_t parent = at(position).parent; parent > 0; parent = at(parent).parent) {
        const Placement* above = at(parent).shownPlacement();
        placement = multiplyPlacements(placement, above ? *above : kIdentityPlacement);
    }
    return placement;
}

void ComponentInstances::apply(const ConfigurationRecord& configuration,
                               const DisplayStateRecord* displayState) {
    for (std::size_t i = 0; i < instances_.size(); ++i) {
        instances_[i].suppressed = base_[i].suppressed;
        instances_[i].hidden = base_[i].hidden;
        instances_[i].placement = base_[i].placement;
    }
    applyBelow(0, configuration, displayState);
}

/// Changes every instance below `top` that has this full name, told from `top`. Instances of one name may
/// stand below other components of the same name too; those are not meant.
template <class Change>
void ComponentInstances::changeNamed(std::int32_t top, const std::u16string& name, Change change) {
    const ComponentInstance& above = at(top);
    const std::int32_t end = top == 0 ? count() : above.end;
    // Takes no memory for the opened document, which has to be put back also when there is none.
    const auto [first, last] = top == 0 ? positionsByName_.equal_range(name)
                                        : positionsByName_.equal_range(above.fullName + u"/" + name);
    for (auto found = first; found != last; ++found) {
        if (found->second > top && found->second < end) {
            change(at(found->second));
        }
    }
}

void ComponentInstances::applyBelow(std::int32_t top, const ConfigurationRecord& configuration,
                                    const DisplayStateRecord* displayState) {
    const auto setHidden = [&](const std::vector<std::u16string>& names, bool hidden) {
        for (const std::u16string& name : names) {
            changeNamed(top, name, [&](ComponentInstance& instance) { instance.hidden = hidden; });
        }
    };
    for (const std::u16string& name : configuration.suppressed) {
        changeNamed(top, name, [](ComponentInstance& instance) { instance.suppressed = true; });
    }
    for (const NamedPlacement& placed : configuration.placements) {
        changeNamed(top, placed.component,
                    [&](ComponentInstance& instance) { instance.placement = &placed.placement; });
    }
    setHidden(configuration.hidden, true);
    setHidden(configuration.shown, false);
    if (displayState) {
        setHidden(displayState->hidden, true);
        setHidden(displayState->shown, false);
    }
}

} // namespace orvane::embedded
