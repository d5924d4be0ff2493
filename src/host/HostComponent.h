#pragma once

#include "host/HostBody.h"
#include "host/HostDecal.h"
#include "host/HostRef.h"
#include "host/HostTransform.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

class HostModelDoc;

/// Resolve states of a component.
inline constexpr std::int32_t kComponentSuppressed = 0;
inline constexpr std::int32_t kComponentLightweight = 1;
inline constexpr std::int32_t kComponentFullyResolved = 2;
inline constexpr std::int32_t kComponentResolved = 3;

/// One component of an assembly, or its root component. 16-bit answers are flags: 0 is false, anything else
/// true.
class HostComponent : public HostObject {
public:
    /// The document that the component shows, by asking the component for that interface; often empty.
    virtual HostRef<HostModelDoc> queryModelDoc() const = 0;
    /// The document that the component shows, by asking for its model.
    virtual HostRef<HostModelDoc> getModelDoc() const = 0;
    /// Full path of the document; empty when there is none.
    virtual std::u16string documentPath() const = 0;

    virtual std::int16_t isRootComponent() const = 0;
    virtual std::int16_t isLoaded() const = 0;
    virtual std::int16_t isSuppressed() const = 0;
    virtual std::int16_t isHidden(std::int16_t flag) const = 0;

    /// Full name: the leaf names of its parents below the root and its own, with `/` between them.
    virtual std::u16string componentName() const = 0;
    virtual std::int32_t getComponentId() const = 0;

    /// The placement in the root's space; empty when the host has none to give.
    virtual HostRef<HostTransform> getPlacement(std::int16_t flag) const = 0;
    /// Asked where `getPlacement` gave nothing; empty when this gives nothing either.
    virtual HostRef<HostTransform> getPlacementFallback() const = 0;

    virtual std::int32_t getChildrenCount() const = 0;
    virtual std::vector<HostRef<HostComponent>> getChildren() const = 0;

    virtual std::int32_t decalCount() const = 0;
    /// The decals that the component itself carries.
    virtual std::vector<HostRef<HostDecal>> decals() const = 0;

    virtual std::int32_t getState() const = 0;
    virtual void setState(std::int32_t state) = 0;

    /// As `HostPart::enumerateBodies`, for the part that the component shows.
    virtual HostRef<HostBodyEnumerator> enumerateBodies(std::int32_t bodyType,
                                                        std::int16_t visibleOnly) const = 0;
};

} // namespace orvane
