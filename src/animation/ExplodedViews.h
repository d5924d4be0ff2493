#pragma once

#include "animation/MotionScene.h"

namespace orvane {

/// Has the host make a motion study of each exploded view, adds what it shows as an animation of the scene
/// under the view's name, and takes the study out of the host's document again.
void sampleExplodedViews(HostAssembly& assembly, const MotionScene& motion);

} // namespace orvane
