#pragma once

#include "host/HostObject.h"
#include "host/HostRef.h"

#include <cstdint>
#include <string>

namespace orvane {

/// The settings of one motion study.
class HostMotionStudyProperties : public HostObject {
public:
    /// Frames a second; 0 when the host tells none.
    virtual std::int32_t readFrameRate() const = 0;
};

/// One motion study: a clock, and components that move with it while the study is entered. 16-bit answers are
/// flags: 0 is failure. Times are seconds.
class HostMotionStudy : public HostObject {
public:
    virtual std::int16_t enterStudy() = 0;
    /// Ends what `enterStudy` began.
    virtual std::int16_t leaveStudy() = 0;
    /// 0 when the host tells none.
    virtual double readStudyDuration() const = 0;
    /// Where the clock stands.
    virtual double readStudyTime() const = 0;
    /// Sets the clock; while the study is entered, the components stand where they are at that time.
    virtual std::int16_t seekStudyTime(double seconds) = 0;
    /// The settings of one kind, by the host's number; empty when the host gives none.
    virtual HostRef<HostMotionStudyProperties> studyProperties(std::int32_t kind) const = 0;

    /// Fills a new study with the motion of an exploded view, apart where `explode` is set and back together
    /// otherwise: it begins at `start` and takes `duration`.
    virtual std::int16_t generateExplodeMotion(bool explode, double duration, double start) = 0;
    virtual void nameStudy(const std::u16string& name) = 0;
    /// Makes what was generated ready to be played.
    virtual std::int16_t computeStudy() = 0;
};

} // namespace orvane
