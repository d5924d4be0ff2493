#pragma once

#include "model/records/ModelRecords.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace orvane::embedded {

/// One component of the opened assembly, its sub-assemblies instanced. Position 0 is the root component.
struct ComponentInstance {
    const ComponentRecord* component = nullptr; ///< null for the root
    const ModelDocument* holder = nullptr;      ///< the document that holds the record
    std::int32_t parent = -1;
    std::int32_t firstChild = -1;
    std::int32_t nextSibling = -1;
    std::int32_t childCount = 0;
    std::int32_t end = 0; ///< one behind the last instance below this one
    std::int32_t id = 0;
    std::int32_t state = 3; ///< resolve state; the exporter may change it
    bool suppressed = false;
    bool hidden = false;
    const Placement* placement = nullptr; ///< relative to the parent; null where there is none
    const Placement* moved = nullptr;     ///< where a study has it instead; null where none moves it
    std::u16string fullName;

    const Placement* shownPlacement() const { return moved ? moved : placement; }
    /// Where it stands at present relative to its parent: where it has no placement its fallback, and where
    /// it has neither the identity.
    const Placement& restPlacement() const;
    /// Whether its model is there: a lightweight component is loaded once it is resolved.
    bool isLoaded() const { return (!component || component->loaded) && state != 1; }
};

/// The display state that a configuration opens with; null where it has none.
const DisplayStateRecord* firstDisplayState(const ConfigurationRecord& configuration);

/// All components of an assembly, depth first, in the shape that one configuration and display state
/// give them.
class ComponentInstances {
public:
    /// Instances the whole tree of `document`, an assembly, which outlives the object. Every sub-assembly
    /// stands in its own active configuration and that one's first display state.
    explicit ComponentInstances(const ModelDocument& document);

    /// Puts the tree into a configuration of the opened document and, unless null, a display state of it.
    /// What these say of components overrides what sub-assemblies and the components themselves say. Resolve
    /// states stay.
    void apply(const ConfigurationRecord& configuration, const DisplayStateRecord* displayState);

    /// The first instance of that full name, depth first; -1 where there is none.
    std::int32_t find(const std::u16string& fullName) const;
    /// All instances of that full name, depth first.
    std::vector<std::int32_t> findAll(const std::u16string& fullName) const;
    /// A placement that instance `position` has relative to its parent, in the root's space: multiplied by
    /// the placements of the parents below the root, one after the other. A missing one counts as the
    /// identity.
    Placement inRootSpace(std::int32_t position, Placement placement) const;

    /// All of them, the root included.
    std::int32_t count() const { return static_cast<std::int32_t>(instances_.size()); }
    ComponentInstance& at(std::int32_t position) { return instances_[static_cast<std::size_t>(position)]; }
    const ComponentInstance& at(std::int32_t position) const {
        return instances_[static_cast<std::size_t>(position)];
    }

private:
    struct BaseState {
        bool suppressed;
        bool hidden;
        const Placement* placement;
    };

    void addChildren(std::int32_t parent, const ModelDocument& holder,
                     const std::vector<ComponentRecord>& components);
    void applyBelow(std::int32_t top, const ConfigurationRecord& configuration,
                    const DisplayStateRecord* displayState);
    template <class Change>
    void changeNamed(std::int32_t top, const std::u16string& name, Change change);

    std::vector<ComponentInstance> instances_;
    std::vector<BaseState> base_; ///< before the opened document's own lists
    std::unordered_multimap<std::u16string, std::int32_t> positionsByName_;
};

} // namespace orvane::embedded
