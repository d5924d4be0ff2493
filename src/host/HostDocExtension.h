#pragma once

#include "host/HostAnnotation.h"
#include "host/HostDecal.h"
#include "host/HostRef.h"

#include <cstdint>
#include <vector>

namespace orvane {

/// The extension object of a document.
class HostDocExtension : public HostObject {
public:
    virtual std::int32_t decalCount() const = 0;
    virtual std::vector<HostRef<HostDecal>> decals() const = 0;

    virtual std::int32_t annotationCount() const = 0;
    virtual std::vector<HostRef<HostAnnotation>> annotations() const = 0;
    /// What manages the document's motion studies, to be taken in the role `HostMotionStudyManager`; empty
    /// when there is none.
    virtual HostRef<HostObject> studyManagerObject() = 0;
};

} // namespace orvane
