#pragma once

#include "animation/AnimationTracks.h"
#include "animation/MotionScene.h"

#include <cstdint>

namespace orvane::animation {

/// The placements of one node in the frames of an animation, for those who stand below it. The animation's
/// tracks and the scene outlive the object.
class ParentPlacements {
public:
    ParentPlacements(const AnimationTracks& animation, const MotionScene& motion, std::int32_t parentNode);

    /// The placement at a frame: that of the parent's first key at the frame, else of the last one before it;
    /// where it has none, the placement that its component has now, or that of the node itself. Empty where
    /// there is none of these.
    HostRef<HostTransform> parentTransformAt(std::int32_t frame);

private:
    const HostRef<HostTransform>& restPlacement();

    const MotionScene& motion_;
    std::int32_t node_;
    const NodeXformTrack* track_ = nullptr;
    HostRef<HostTransform> rest_; ///< asked for once
    bool isRestKnown_ = false;
};

/// Turns the tracks of an animation into channels of translations (metres) and rotations (unit quaternions)
/// relative to the parent node. Of values that stay within 0.0001 of the last key only the first one is kept,
/// and the last one before a change; a channel that comes to less than two keys is left out. With
/// `accumulate`, the placements of a track are steps, each relative to the one before and the first to the
/// node's own placement; they are replaced by their products first.
void buildKeys(AnimationTracks& animation, const MotionScene& motion, bool accumulate);

} // namespace orvane::animation
