#pragma once

#include "host/HostBox.h"
#include "host/HostComponent.h"
#include "host/HostRef.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane {

/// The assembly interface of an assembly document.
class HostAssembly : public HostObject {
public:
    virtual std::int32_t componentCount() const = 0;
    /// All components below the root, depth first.
    virtual std::vector<HostRef<HostComponent>> components() const = 0;
    /// The box of all that is shown, in the root's space; nothing when that is nothing.
    virtual std::optional<HostBox> assemblyBox() const = 0;

    virtual std::int32_t countExplodedViews() const = 0;
    virtual std::vector<std::u16string> listExplodedViewNames() = 0;
};

} // namespace orvane
