#pragma once

#include "embedded/ComponentInstances.h"
#include "embedded/PlacementPath.h"
#include "host/HostTransform.h"
#include "model/records/ModelRecords.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace orvane::embedded {

/// How a study moves one component.
struct StudyTrack {
    std::int32_t position = -1; ///< of the component among the instances of the opened assembly
    TrackInterpolation interpolation = TrackInterpolation::linear;
    std::span<const TrackKey> keys; ///< in time order, at least one
};

/// A motion study of the opened document.
struct EmbeddedStudy {
    std::u16string name;
    double duration = 0; ///< seconds
    std::int32_t frameRate = 24;
    double time = 0; ///< last sought, seconds
    std::vector<StudyTrack> tracks;
    std::vector<std::vector<TrackKey>> generatedKeys; ///< those that no record holds
    const ExplodedViewRecord* explodedView = nullptr; ///< what it can be filled with, or null
};

using StudyRef = std::shared_ptr<EmbeddedStudy>;

/// A study while it is entered. It moves nothing until a time is sought.
class StudyPlayback {
public:
    /// `components` outlive the object; null for a part.
    StudyPlayback(StudyRef study, ComponentInstances* components);

    const StudyRef& study() const { return study_; }
    void seek(double seconds);
    void putBack();

    /// The placement of a component in the root's space, which has to have one relative to its parent. As
    /// long as neither the component nor anything above it is moved, the same object is answered.
    HostRef<HostTransform> placementOf(std::int32_t position);
    /// To be called when components change for other reasons than a sought time.
    void forgetPlacements() { answers_.clear(); }

private:
    struct Mover {
        StudyTrack track;
        std::size_t pathEnd = 0; ///< position of the key at which `path` ends
        std::optional<PlacementPath> path{};
        Placement placement = kIdentityPlacement; ///< at the sought time
    };
    struct Range {
        std::int32_t begin, end;
    };

    static void moveTo(Mover& mover, double seconds);

    StudyRef study_;
    ComponentInstances* components_;
    std::vector<Mover> movers_;
    std::vector<Range> movedRanges_;              ///< instances that move, and all below them
    std::vector<HostRef<HostTransform>> answers_; ///< by position; empty where not yet asked for
};

} // namespace orvane::embedded
