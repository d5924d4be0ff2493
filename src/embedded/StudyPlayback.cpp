#include "embedded/StudyPlayback.h"

#include "embedded/EmbeddedSession.h"

#include <algorithm>
#include <utility>

namespace orvane::embedded {

StudyPlayback::StudyPlayback(StudyRef study, ComponentInstances* components)
    : study_(std::move(study)), components_(components) {
    if (!components_) {
        return;
    }
    std::vector<std::int32_t> positions;
    for (const StudyTrack& track : study_->tracks) {
        movers_.push_back({.track = track});
        positions.push_back(track.position);
    }
    std::ranges::sort(positions);
    for (const std::int32_t position : positions) {
        // An instance and all below it stand one behind the other.
        if (movedRanges_.empty() || position >= movedRanges_.back().end) {
            movedRanges_.push_back({position, components_->at(position).end});
        }
    }
}

void StudyPlayback::moveTo(Mover& mover, double seconds) {
    const std::span<const TrackKey> keys = mover.track.keys;
    const auto next = std::ranges::upper_bound(keys, seconds, {}, &TrackKey::time);
    if (next == keys.begin() || next == keys.end()) {
        mover.placement = next == keys.begin() ? next->placement : keys.back().placement;
        return;
    }
    const TrackKey& before = *(next - 1);
    if (mover.track.interpolation == TrackInterpolation::step || before.time == seconds) {
        mover.placement = before.placement;
        return;
    }
    const auto pathEnd = static_cast<std::size_t>(next - keys.begin());
    if (pathEnd != mover.pathEnd) {
        mover.path.emplace(before.placement, next->placement);
        mover.pathEnd = pathEnd;
    }
    mover.placement = mover.path->at((seconds - before.time) / (next->time - before.time));
}

void StudyPlayback::seek(double seconds) {
    for (Mover& mover : movers_) {
        moveTo(mover, seconds);
        components_->at(mover.track.position).moved = &mover.placement;
    }
    if (!answers_.empty()) {
        for (const Range& range : movedRanges_) {
            std::fill(answers_.begin() + range.begin, answers_.begin() + range.end, HostRef<HostTransform>());
        }
    }
}

void StudyPlayback::putBack() {
    for (const Mover& mover : movers_) {
        components_->at(mover.track.position).moved = nullptr;
    }
    answers_.clear();
}

HostRef<HostTransform> StudyPlayback::placementOf(std::int32_t position) {
    answers_.resize(static_cast<std::size_t>(components_->count()));
    HostRef<HostTransform>& answer = answers_[static_cast<std::size_t>(position)];
    if (!answer) {
        answer =
            makeTransform(components_->inRootSpace(position, *components_->at(position).shownPlacement()));
    }
    return answer;
}

} // namespace orvane::embedded
