#pragma once

#include "animation/AnimationTracks.h"
#include "animation/MotionScene.h"
#include "host/HostMotionStudyManager.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// More frames than this are not taken of one study.
inline constexpr double kMostFrames = 10'000'000;

/// The manager of a document's motion studies; empty where there is none.
HostRef<HostMotionStudyManager> studyManager(HostModelDoc& modelDoc);

/// Plays every motion study of the document, and adds an animation of the scene for each one in which
/// something moves. The host's model stands as before afterwards.
void sampleStudies(const MotionScene& motion);

/// Plays one study from 0 to its end, frame by frame, and adds what moved as an animation of the scene under
/// that name. A study without a duration is entered, and left alone; one of too many frames is left out,
/// which the report tells.
void sampleStudy(HostMotionStudy& study, const std::u16string& name, const MotionScene& motion);

/// A component that a study may move. It remembers what the host answered last.
struct SampledComponent {
    HostRef<HostComponent> component;
    std::int32_t node = -1;
    bool isBelowNode = false; ///< whether the component above it has a node
    std::int32_t track = -1;  ///< position among the animation's tracks, once it has one
    HostRef<HostTransform> answered{}, global{};
};

/// The component and everything below it that has a node, depth first, without root components.
/// `parentNode` is the node of what stands above it, or -1.
void listComponents(const HostRef<HostComponent>& component, std::int32_t parentNode,
                    const NodeNames& nodeNames, std::vector<SampledComponent>& list);

/// Records where all components stand at present: one key for each that has a placement. Where the host
/// answers the same object as in the frame before, the keys share one.
void captureFrame(std::int32_t frame, double time, std::vector<SampledComponent>& components,
                  const HostRef<HostTransform>& rootTransform, animation::AnimationTracks& animation);

} // namespace orvane
