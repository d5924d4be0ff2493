#pragma once

#include "animation/AnimationTracks.h"
#include "document/BufferFolder.h"
#include "document/BufferNames.h"
#include "document/ExportReport.h"
#include "document/GltfDocument.h"

#include <cstddef>
#include <string>
#include <unordered_map>

namespace orvane {

/// The files that the animations of an export wrote so far: a hash of the contents by name.
using AnimationFiles = std::unordered_map<std::string, std::size_t>;

/// Where an export's animations go.
struct ChannelTarget {
    BufferFolder& folder;
    BufferNames& names;
    ExportReport& report;
    AnimationFiles& files;
};

} // namespace orvane

namespace orvane::animation {

/// Turns the keys of an animation into one buffer with its file, up to three buffer views and two accessors
/// for each channel, whose indices the channels get. The file holds 32-bit floats, little endian, without
/// gaps: the times of all channels, then x, y, z of the translations, then x, y, z, w of the rotations. It is
/// named after the animation and takes the place of a file of that name; the report tells when that loses
/// what this export had put there. All keys are freed. False where there is nothing to write or the file
/// cannot be written; without keys nothing is added to the document.
bool writeChannels(AnimationTracks& animation, GltfDocument& document, const ChannelTarget& target);

} // namespace orvane::animation
