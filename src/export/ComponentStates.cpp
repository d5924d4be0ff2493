#include "export/ComponentStates.h"

#include "host/PutBack.h"

namespace orvane::exporter {

namespace {

/// Calls `visit` on every component below `parent`, depth first, parents before their children.
template <class Visit>
void visitBelow(const HostRef<HostComponent>& parent, Visit& visit) {
    if (parent->getChildrenCount() <= 0) {
        return;
    }
    for (const HostRef<HostComponent>& child : parent->getChildren()) {
        visit(child);
        visitBelow(child, visit);
    }
}

} // namespace

ComponentStateList::ComponentStateList(const HostRef<HostComponent>& root) {
    auto record = [&](const HostRef<HostComponent>& component) {
        states_.emplace_back(component, component->getState());
    };
    visitBelow(root, record);
}

ComponentStateList::~ComponentStateList() {
    for (const auto& entry : states_) {
        const PutBack back([&] {
            if (entry.first->getState() != entry.second) {
                entry.first->setState(entry.second);
            }
        });
    }
}

void setStates(const HostRef<HostComponent>& root, std::int32_t state) {
    auto resolve = [&](const HostRef<HostComponent>& component) {
        if (component->getState() == kComponentLightweight) {
            component->setState(state);
        }
    };
    visitBelow(root, resolve);
}

} // namespace orvane::exporter
