#include "embedded/EmbeddedStudies.h"

#include "embedded/ExplodeMotion.h"

#include <algorithm>
#include <utility>

namespace orvane::embedded {

EmbeddedStudies::EmbeddedStudies(const ModelDocument& document, ComponentInstances* components)
    : document_(document), components_(components) {
    for (const MotionStudyRecord& record : document.motionStudies) {
        EmbeddedStudy& study = *studies_.emplace_back(std::make_shared<EmbeddedStudy>());
        study.name = record.name;
        study.duration = record.duration;
        study.frameRate = record.frameRate;
        study.time = record.time;
        for (const TrackRecord& track : record.tracks) {
            if (components_ && !track.keys.empty()) {
                for (const std::int32_t position : components_->findAll(track.component)) {
                    study.tracks.push_back({position, track.interpolation, track.keys});
                }
            }
        }
    }
}

StudyRef EmbeddedStudies::find(const std::u16string& name) const {
    const auto found = std::ranges::find(studies_, name, [](const StudyRef& study) { return study->name; });
    return found == studies_.end() ? nullptr : *found;
}

bool EmbeddedStudies::remove(const std::u16string& name) {
    const auto found = std::find_if(studies_.rbegin(), studies_.rend(),
                                    [&](const StudyRef& study) { return study->name == name; });
    if (found == studies_.rend()) {
        return false;
    }
    leave(*found);
    studies_.erase(std::next(found).base());
    return true;
}

void EmbeddedStudies::add(const StudyRef& study) {
    studies_.push_back(study);
    if (nextExplodedView_ < document_.explodedViews.size()) {
        study->explodedView = &document_.explodedViews[nextExplodedView_++];
    }
}

bool EmbeddedStudies::generateExplodeMotion(EmbeddedStudy& study, bool explode, double duration,
                                            double start) const {
    if (!study.explodedView || !components_) {
        return false;
    }
    fillWithExplodedView(study, *components_, {explode, duration, start});
    return true;
}

void EmbeddedStudies::enter(const StudyRef& study) {
    if (playback_) {
        playback_->putBack();
    }
    playback_.emplace(study, components_);
}

bool EmbeddedStudies::leave(const StudyRef& study) {
    if (!playback_ || playback_->study() != study) {
        return false;
    }
    playback_->putBack();
    playback_.reset();
    return true;
}

void EmbeddedStudies::seek(const StudyRef& study, double seconds) {
    study->time = seconds;
    if (playback_ && playback_->study() == study) {
        playback_->seek(seconds);
    }
}

} // namespace orvane::embedded
