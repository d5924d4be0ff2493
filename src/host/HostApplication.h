#pragma once

#include "host/HostMathUtility.h"
#include "host/HostModelDoc.h"
#include "host/HostRef.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// The host itself. It outlives every reference to an object of its own.
class HostApplication : public HostObject {
public:
    /// The host's revision, its major number first: "28.1.0".
    virtual std::u16string revisionText() = 0;
    /// The document in front; empty when none is open.
    virtual HostRef<HostModelDoc> activeDocument() = 0;
    virtual std::int32_t openDocumentCount() = 0;
    /// Every open document, those that others refer to included.
    virtual std::vector<HostRef<HostModelDoc>> openDocuments() = 0;
    /// The folder under which the host's library lies, without a separator at its end.
    virtual std::u16string hostInstallFolder() = 0;
    /// Registers a name under which a client leaves marks on entities; the host may put another number into
    /// `id`.
    virtual void registerTrackingId(const std::u16string& name, std::int32_t& id) = 0;
    virtual HostRef<HostMathUtility> mathUtility() = 0;
};

} // namespace orvane
