#pragma once

#include "document/GltfRecords.h"
#include "host/HostTransform.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace orvane::animation {

/// Where a node stands in one frame of a study.
struct XformKey {
    HostRef<HostTransform> global; ///< in the root's space; frames may share one object
    double time = -1;              ///< in the study, seconds; negative: the frame number is the time
    std::int32_t frame = -1;
};

struct NodeXformTrack {
    std::int32_t node = -1;
    Interpolation interpolation = Interpolation::linear;
    std::vector<XformKey> keys{}; ///< in the order of their frames
};

/// Metres for a translation, which leaves `w` alone; a unit quaternion for a rotation.
struct ChannelKey {
    double time = 0; ///< seconds
    double x = 0, y = 0, z = 0, w = 1;
};

struct KeyedChannel {
    GltfAnimationChannel record;
    std::vector<ChannelKey> keys;
};

/// An animation while it is built.
struct AnimationTracks {
    std::string name;
    std::vector<NodeXformTrack> xforms; ///< one for each node, in the order in which nodes were seen
    std::unordered_map<std::int32_t, std::size_t> trackByNode;
    std::vector<KeyedChannel> channels;
};

} // namespace orvane::animation
