#pragma once

#include "host/HostBody.h"
#include "host/HostBox.h"
#include "host/HostRef.h"

#include <cstdint>
#include <optional>

namespace orvane {

class HostModelDoc;

/// The part interface of a part document.
class HostPart : public HostObject {
public:
    /// The part's document.
    virtual HostRef<HostModelDoc> getModelDoc() const = 0;
    /// The bodies of one kind (see `kSolidBody`), only those shown when `visibleOnly` is not 0; empty when
    /// the host gives no enumerator.
    virtual HostRef<HostBodyEnumerator> enumerateBodies(std::int32_t bodyType,
                                                        std::int16_t visibleOnly) const = 0;
    /// The box of the bodies that are shown; nothing when that is nothing. `visibleOnly` is a flag.
    virtual std::optional<HostBox> partBox(std::int16_t visibleOnly) const = 0;
};

} // namespace orvane
