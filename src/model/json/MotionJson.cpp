#include "model/json/MotionJson.h"

#include "model/json/DocumentContext.h"
#include "model/json/JsonCursor.h"
#include "model/json/PlacementJson.h"

#include <limits>

namespace orvane::json {

void readValue(const JsonCursor& value, TrackKey& key) {
    value.expectObject({"time", "placement"});
    value.read("time", key.time);
    value.read("placement", key.placement);
}

namespace {

/// The host answers a rate as a 32-bit number, and a clock does not run backwards.
void readFrameRate(const JsonCursor& value, std::int32_t& frameRate) {
    value.with("frameRate", [&](const JsonCursor& rate) {
        frameRate = static_cast<std::int32_t>(rate.integer(0, std::numeric_limits<std::int32_t>::max()));
    });
}

void readKeys(const JsonCursor& list, std::vector<TrackKey>& keys) {
    readValue(list, keys);
    for (std::size_t i = 1; i < keys.size(); ++i) {
        if (!(keys[i - 1].time < keys[i].time)) {
            list.at(i).fail("a key that is not later than the one before", "keys in ascending time order");
        }
    }
}

} // namespace

void readValue(const JsonCursor& value, TrackRecord& track) {
    value.expectObject({"component", "interpolation", "keys"});
    value.with("component",
               [&](const JsonCursor& fullName) { track.component = mentionComponent(fullName); });
    value.with("interpolation", [&](const JsonCursor& word) {
        track.interpolation = readWord<TrackInterpolation>(
            word, {{"linear", TrackInterpolation::linear}, {"step", TrackInterpolation::step}});
    });
    value.with("keys", [&](const JsonCursor& list) { readKeys(list, track.keys); });
}

void readValue(const JsonCursor& value, MotionStudyRecord& study) {
    value.expectObject({"name", "duration", "frameRate", "time", "tracks"});
    value.read("name", study.name);
    value.read("duration", study.duration);
    readFrameRate(value, study.frameRate);
    value.read("time", study.time);
    value.read("tracks", study.tracks);
    std::erase_if(study.tracks,
                  [](const TrackRecord& track) { return track.keys.empty() || track.component.empty(); });
}

void readValue(const JsonCursor& value, ExplodeStepRecord& step) {
    value.expectObject({"components", "translate"});
    value.with("components", [&](const JsonCursor& names) { step.components = mentionComponents(names); });
    value.read("translate", step.translate);
}

void readValue(const JsonCursor& value, ExplodedViewRecord& view) {
    value.expectObject({"name", "frameRate", "steps"});
    value.read("name", view.name);
    readFrameRate(value, view.frameRate);
    value.read("steps", view.steps);
}

} // namespace orvane::json
