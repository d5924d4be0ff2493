#include "animation/KeyBuilding.h"

#include "document/NearEquality.h"
#include "geometry/AffineDecomposition.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace orvane::animation {

namespace {

constexpr std::int16_t kTrue = -1;

HostRef<HostTransform> heldTransform(const MotionScene& motion, std::int32_t node) {
    const auto origin = motion.origins.find(node);
    return origin == motion.origins.end() ? HostRef<HostTransform>() : origin->second.world;
}

/// A rotation that turns the other way; one without a length stays.
Quaternion inverseOf(const Quaternion& q) {
    const double n = q.w * q.w + q.x * q.x + q.y * q.y + q.z * q.z;
    if (!(n > 0)) {
        return q;
    }
    const double factor = 1.0 / n;
    return {-q.x * factor, -q.y * factor, -q.z * factor, q.w * factor};
}

/// The two keys of a placement, without a time.
struct PlacementKeys {
    ChannelKey translation, rotation;
};

PlacementKeys keysOf(const TransformNumbers& m) {
    const AffineMatrix hm = {{{m[0], m[1], m[2], m[9]},
                              {m[3], m[4], m[5], m[10]},
                              {m[6], m[7], m[8], m[11]},
                              {m[13], m[14], m[15], m[12]}}};
    AffineParts parts;
    decomposeAffine(hm, true, parts); // the stretch is not looked at
    // The block turns row vectors and was split as one that turns columns: its inverse is meant.
    const Quaternion q = inverseOf(parts.q);
    return {{.x = parts.t.x, .y = parts.t.y, .z = parts.t.z}, {.x = q.x, .y = q.y, .z = q.z, .w = q.w}};
}

/// The keys of a channel, without those that change nothing.
class MergedKeys {
public:
    void add(const ChannelKey& key) {
        if (!keys_.empty()) {
            const ChannelKey last = keys_.back();
            if (isNear(last.x, key.x) && isNear(last.y, key.y) && isNear(last.z, key.z) &&
                isNear(last.w, key.w)) {
                stopTime_ = key.time;
                holds_ = true;
                return;
            }
            if (holds_) {
                holds_ = false;
                keys_.push_back(last);
                keys_.back().time = stopTime_;
            }
        }
        keys_.push_back(key);
    }

    std::vector<ChannelKey> take() { return std::move(keys_); }

private:
    std::vector<ChannelKey> keys_;
    bool holds_ = false;
    double stopTime_ = 0;
};

std::optional<ParentPlacements> parentOf(const AnimationTracks& animation, const MotionScene& motion,
                                         std::int32_t node) {
    const std::int32_t parent = motion.document.nodes[static_cast<std::size_t>(node)]->parent;
    return parent < 0 ? std::nullopt
                      : std::optional<ParentPlacements>(std::in_place, animation, motion, parent);
}

/// Places the frames of one track relative to the parent. A frame that shares its objects with the one before
/// is not worked out again.
class LocalKeys {
public:
    LocalKeys(const AnimationTracks& animation, const MotionScene& motion,
              const HostRef<HostMathUtility>& math, std::int32_t node)
        : math_(math), parent_(parentOf(animation, motion, node)) {}

    const PlacementKeys& of(const XformKey& key) {
        HostRef<HostTransform> parent =
            parent_ ? parent_->parentTransformAt(key.frame) : HostRef<HostTransform>();
        const bool isSameParent = hasKeys_ && parent.get() == lastParent_.get();
        if (isSameParent && key.global && key.global.get() == lastGlobal_.get()) {
            return keys_;
        }
        if (!isSameParent) {
            lastParent_ = std::move(parent);
            inverse_ = lastParent_ ? lastParent_->inverse() : HostRef<HostTransform>();
        }
        lastGlobal_ = key.global;
        const HostRef<HostTransform> local = localOf(key.global);
        keys_ = keysOf(local ? local->readArray() : kIdentityTransform);
        hasKeys_ = true;
        return keys_;
    }

private:
    HostRef<HostTransform> localOf(const HostRef<HostTransform>& global) const {
        if (!lastParent_) {
            return global;
        }
        const HostRef<HostTransform> placement =
            !global && math_ ? math_->createTransform(kIdentityTransform) : global;
        return placement && inverse_ ? placement->multiply(*inverse_) : HostRef<HostTransform>();
    }

    const HostRef<HostMathUtility>& math_;
    std::optional<ParentPlacements> parent_;
    HostRef<HostTransform> lastParent_, inverse_, lastGlobal_;
    PlacementKeys keys_;
    bool hasKeys_ = false;
};

void accumulateSteps(NodeXformTrack& track, const MotionScene& motion, const HostRef<HostMathUtility>& math) {
    HostRef<HostTransform> placement = heldTransform(motion, track.node);
    if (!placement && math) {
        placement = math->createTransform(kIdentityTransform);
    }
    for (XformKey& key : track.keys) {
        if (!key.global || !placement) {
            continue;
        }
        if (HostRef<HostTransform> product = placement->multiply(*key.global)) {
            key.global = placement = std::move(product);
        }
    }
}

void appendChannel(AnimationTracks& animation, const NodeXformTrack& track, ChannelPath path,
                   MergedKeys& keys) {
    KeyedChannel channel{{track.node, path, track.interpolation}, keys.take()};
    if (channel.keys.size() >= 2) {
        animation.channels.push_back(std::move(channel));
    }
}

} // namespace

ParentPlacements::ParentPlacements(const AnimationTracks& animation, const MotionScene& motion,
                                   std::int32_t parentNode)
    : motion_(motion), node_(parentNode) {
    const auto track = animation.trackByNode.find(parentNode);
    if (track != animation.trackByNode.end()) {
        track_ = &animation.xforms[track->second];
    }
}

HostRef<HostTransform> ParentPlacements::parentTransformAt(std::int32_t frame) {
    if (track_ && !track_->keys.empty()) {
        const std::vector<XformKey>& keys = track_->keys;
        auto key = std::ranges::lower_bound(keys, frame, {}, &XformKey::frame);
        const bool isExact = key != keys.end() && key->frame == frame;
        if (!isExact && key != keys.begin()) {
            --key;
        } else if (!isExact) {
            return restPlacement(); // all keys are later ones
        }
        if (key->global) {
            return key->global;
        }
    }
    return restPlacement();
}

const HostRef<HostTransform>& ParentPlacements::restPlacement() {
    if (isRestKnown_) {
        return rest_;
    }
    isRestKnown_ = true;
    const auto origin = motion_.origins.find(node_);
    if (origin == motion_.origins.end()) {
        return rest_;
    }
    if (const HostRef<HostComponent>& component = origin->second.component) {
        HostRef<HostTransform> placement = component->getPlacement(kTrue);
        if (!placement) {
            placement = component->getPlacementFallback();
        }
        if (placement && motion_.rootTransform) {
            rest_ = motion_.rootTransform->multiply(*placement);
        }
    }
    if (!rest_) {
        rest_ = origin->second.world;
    }
    return rest_;
}

void buildKeys(AnimationTracks& animation, const MotionScene& motion, bool accumulate) {
    const HostRef<HostMathUtility> math = motion.host.mathUtility();
    Progress& progress = motion.document.progress;
    for (NodeXformTrack& track : animation.xforms) {
        if (accumulate) {
            accumulateSteps(track, motion, math);
        }
        progressAddTotal(progress, static_cast<std::int32_t>(track.keys.size()));
        LocalKeys localKeys(animation, motion, math, track.node);
        MergedKeys translations, rotations;
        for (const XformKey& key : track.keys) {
            PlacementKeys keys = localKeys.of(key);
            keys.translation.time = keys.rotation.time = key.time >= 0 ? key.time : key.frame * 1.0;
            translations.add(keys.translation);
            rotations.add(keys.rotation);
            progressAddDone(progress, 1);
        }
        appendChannel(animation, track, ChannelPath::translation, translations);
        appendChannel(animation, track, ChannelPath::rotation, rotations);
    }
}

} // namespace orvane::animation
