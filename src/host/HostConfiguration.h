#pragma once

#include "host/HostComponent.h"
#include "host/HostCustomProperties.h"
#include "host/HostRef.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// One configuration of a document.
class HostConfiguration : public HostObject {
public:
    virtual std::u16string getConfigurationName() const = 0;
    virtual std::vector<std::u16string> getDisplayStateNames() const = 0;
    /// Puts the model on the screen into the display state of that name; answers whether it did.
    virtual bool applyDisplayState(const std::u16string& name) = 0;
    /// The root of the component tree; empty for a part.
    virtual HostRef<HostComponent> getRootComponent() const = 0;
    /// Empty when the configuration has no custom properties to manage.
    virtual HostRef<HostCustomProperties> customProperties() const = 0;
    /// The steps of the exploded views that the configuration has.
    virtual std::int32_t countExplodeSteps() const = 0;
};

} // namespace orvane
