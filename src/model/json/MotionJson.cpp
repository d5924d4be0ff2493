#include "model/json/MotionJson.h"

#include "model/json/DocumentContext.h"
#include "model/json/JsonCursor.h"
#include "model/json/PlacementJson.h"

#include <limits>

namespace orvane::json {

void readValue(const JsonCursor& value, TrackKey& frame) {
    value.readObject(key("time", frame.time), key("placement", frame.placement));
}

namespace {

/// The host answers a rate as a 32-bit number, and a clock does not run backwards.
std::int32_t readFrameRate(const JsonCursor& value) {
    return static_cast<std::int32_t>(value.integer(0, std::numeric_limits<std::int32_t>::max()));
}

std::vector<TrackKey> readKeys(const JsonCursor& list) {
    auto keys = valueAs<std::vector<TrackKey>>(list);
    for (std::size_t i = 1; i < keys.size(); ++i) {
        if (!(keys[i - 1].time < keys[i].time)) {
            list.at(i).fail("a key that is not later than the one before", "keys in ascending time order");
        }
    }
    return keys;
}

TrackInterpolation readInterpolation(const JsonCursor& value) {
    return readWord<TrackInterpolation>(
        value, {{"linear", TrackInterpolation::linear}, {"step", TrackInterpolation::step}});
}

} // namespace

void readValue(const JsonCursor& value, TrackRecord& track) {
    value.readObject(key("component", track.component, mentionComponent),
                     key("interpolation", track.interpolation, readInterpolation),
                     key("keys", track.keys, readKeys));
}

void readValue(const JsonCursor& value, MotionStudyRecord& study) {
    value.readObject(key("name", study.name), key("duration", study.duration),
                     key("frameRate", study.frameRate, readFrameRate), key("time", study.time),
                     key("tracks", study.tracks));
    std::erase_if(study.tracks,
                  [](const TrackRecord& track) { return track.keys.empty() || track.component.empty(); });
}

void readValue(const JsonCursor& value, ExplodeStepRecord& step) {
    value.readObject(key("components", step.components, mentionComponents), key("translate", step.translate));
}

void readValue(const JsonCursor& value, ExplodedViewRecord& view) {
    value.readObject(key("name", view.name), key("frameRate", view.frameRate, readFrameRate),
                     key("steps", view.steps));
}

} // namespace orvane::json
