#pragma once

#include "host/HostComponent.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace orvane::exporter {

/// The resolve states of all components below a root at one moment. Its end puts back every one that changed
/// since.
class ComponentStateList {
public:
    explicit ComponentStateList(const HostRef<HostComponent>& root);
    ComponentStateList(const ComponentStateList&) = delete;
    ComponentStateList& operator=(const ComponentStateList&) = delete;
    ~ComponentStateList();

private:
    std::vector<std::pair<HostRef<HostComponent>, std::int32_t>> states_; ///< depth first
};

/// Sets every lightweight component below `root` to `state`; all others stay as they are.
void setStates(const HostRef<HostComponent>& root, std::int32_t state);

} // namespace orvane::exporter
