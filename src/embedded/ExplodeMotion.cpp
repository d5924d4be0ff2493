#include "embedded/ExplodeMotion.h"

#include "embedded/PlacementMath.h"

#include <algorithm>
#include <map>

namespace orvane::embedded {

namespace {

/// The components that a step moves by themselves: one that stands below another of them moves with it.
std::vector<std::int32_t> movedComponents(const ExplodeStepRecord& step,
                                          const ComponentInstances& components) {
    std::vector<std::int32_t> named;
    for (const std::u16string& name : step.components) {
        const std::vector<std::int32_t> found = components.findAll(name);
        named.insert(named.end(), found.begin(), found.end());
    }
    std::ranges::sort(named);
    std::vector<std::int32_t> moved;
    std::int32_t end = 0; // behind the last component that is moved so far
    for (const std::int32_t position : named) {
        if (position >= end) {
            moved.push_back(position);
            end = components.at(position).end;
        }
    }
    return moved;
}

/// A translation of the root's space in the space of a component's parent.
Vector3 inParentSpace(const ComponentInstances& components, std::int32_t position,
                      const Vector3& translation) {
    const std::int32_t parent = components.at(position).parent;
    if (parent <= 0) {
        return translation;
    }
    const Placement* own = components.at(parent).shownPlacement();
    Placement toParent = invertPlacement(components.inRootSpace(parent, own ? *own : kIdentityPlacement));
    std::fill_n(toParent.begin() + 9, 3, 0.0);
    return transformPoint(toParent, translation);
}

using KeysByPosition = std::map<std::int32_t, std::vector<TrackKey>>;

/// Moves a component between two times, after whatever it did before.
void appendMotion(std::vector<TrackKey>& keys, const Placement& rest, const Vector3& translation,
                  double begin, double end) {
    Placement placement = keys.empty() ? rest : keys.back().placement;
    if (keys.empty() || keys.back().time < begin) {
        keys.push_back({begin, placement});
    }
    for (std::size_t i = 0; i < 3; ++i) {
        placement[9 + i] += translation[i];
    }
    keys.push_back({end, placement});
}

KeysByPosition explodedKeys(const ExplodedViewRecord& view, const ComponentInstances& components,
                            const ExplodeTiming& timing) {
    KeysByPosition keysByPosition;
    const auto count = static_cast<double>(view.steps.size());
    const auto timeOf = [&](std::size_t step) {
        return timing.start + timing.duration * (static_cast<double>(step) / count);
    };
    for (std::size_t step = 0; step < view.steps.size(); ++step) {
        for (const std::int32_t position : movedComponents(view.steps[step], components)) {
            appendMotion(keysByPosition[position], components.at(position).restPlacement(),
                         inParentSpace(components, position, view.steps[step].translate), timeOf(step),
                         timeOf(step + 1));
        }
    }
    return keysByPosition;
}

} // namespace

void fillWithExplodedView(EmbeddedStudy& study, const ComponentInstances& components,
                          const ExplodeTiming& timing) {
    study.duration = timing.start + timing.duration;
    study.frameRate = study.explodedView->frameRate;
    study.tracks.clear();
    study.generatedKeys.clear();
    for (auto& [position, keys] : explodedKeys(*study.explodedView, components, timing)) {
        if (!timing.explode) {
            std::ranges::reverse(keys);
            for (TrackKey& key : keys) {
                key.time = timing.start + (timing.duration - (key.time - timing.start));
            }
        }
        // The numbers stay where they are when the list of lists moves.
        const std::vector<TrackKey>& held = study.generatedKeys.emplace_back(std::move(keys));
        study.tracks.push_back({position, TrackInterpolation::linear, held});
    }
}

} // namespace orvane::embedded
