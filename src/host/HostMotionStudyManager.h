#pragma once

#include "host/HostMotionStudy.h"
#include "host/HostRef.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// The motion studies of a document.
class HostMotionStudyManager : public HostObject {
public:
    virtual std::int32_t countStudies() const = 0;
    virtual std::vector<std::u16string> listStudyNames() const = 0;
    /// Empty when there is no study of that name.
    virtual HostRef<HostMotionStudy> findStudyByName(const std::u16string& name) = 0;
    /// Adds an empty study to the document; empty when the host makes none.
    virtual HostRef<HostMotionStudy> createStudy() = 0;
    /// Takes a study out of the document; answers with a flag whether it did.
    virtual std::int16_t deleteStudyByName(const std::u16string& name) = 0;
};

} // namespace orvane
