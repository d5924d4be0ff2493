#include "animation/ChannelBuffers.h"

#include "document/AsciiNames.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

namespace orvane::animation {

namespace {

static_assert(std::endian::native == std::endian::little, "buffers are written as they lie in memory");

constexpr std::int64_t kFloatSize = sizeof(float);

/// What a view holds: one of the sections of the file.
struct SectionFormat {
    AccessorType type;
    std::int64_t floats; ///< a key
    BufferTarget target;
};

/// The times have the target of indices, by which readers know the view (docs/output-format.md, "Animation
/// data").
constexpr SectionFormat kTimes = {AccessorType::scalar, 1, BufferTarget::indices};
constexpr SectionFormat kTranslations = {AccessorType::vec3, 3, BufferTarget::vertices};
constexpr SectionFormat kRotations = {AccessorType::vec4, 4, BufferTarget::vertices};

struct Section {
    SectionFormat format;
    std::optional<ChannelPath> path; ///< of the channels that it takes; nothing: all
    std::int32_t view = -1;

    bool takes(const KeyedChannel& channel) const { return !path || channel.record.path == *path; }
};

std::int64_t keyCount(const KeyedChannel& channel) {
    return static_cast<std::int64_t>(channel.keys.size());
}

/// In the order of the file.
std::vector<Section> sectionsOf(const std::vector<KeyedChannel>& channels) {
    std::vector<Section> sections = {{kTimes, std::nullopt}};
    for (const Section& values :
         {Section{kTranslations, ChannelPath::translation}, Section{kRotations, ChannelPath::rotation}}) {
        if (std::ranges::any_of(channels, [&](const auto& channel) { return values.takes(channel); })) {
            sections.push_back(values);
        }
    }
    return sections;
}

void addView(GltfDocument& document, std::int32_t buffer, Section& section) {
    section.view = static_cast<std::int32_t>(document.bufferViews.size());
    GltfBufferView& view = addRecord(document.bufferViews);
    view.buffer = buffer;
    view.byteStride = section.format.floats * kFloatSize;
    view.target = section.format.target;
}

/// Makes the accessors of a section, which begins at `offset` in the file, and gives the section's length.
std::int64_t addAccessors(GltfDocument& document, std::vector<KeyedChannel>& channels, const Section& section,
                          std::int64_t offset) {
    GltfBufferView& view = *document.bufferViews[static_cast<std::size_t>(section.view)];
    view.byteOffset = offset;
    for (KeyedChannel& channel : channels) {
        if (!section.takes(channel)) {
            continue;
        }
        (section.path ? channel.record.output : channel.record.input) =
            static_cast<std::int32_t>(document.accessors.size());
        GltfAccessor& accessor = addRecord(document.accessors);
        accessor.bufferView = section.view;
        accessor.componentType = ComponentType::singleFloat;
        accessor.type = section.format.type;
        accessor.byteOffset = view.byteLength;
        accessor.count = keyCount(channel);
        view.byteLength += keyCount(channel) * section.format.floats * kFloatSize;
    }
    return view.byteLength;
}

/// Fills `floats` from its beginning, and gives what is left of it.
std::span<float> fillSection(const std::vector<KeyedChannel>& channels, const Section& section,
                             std::span<float> floats) {
    const auto width = static_cast<std::size_t>(section.format.floats);
    for (const KeyedChannel& channel : channels) {
        if (!section.takes(channel)) {
            continue;
        }
        for (const ChannelKey& key : channel.keys) {
            const double values[] = {key.x, key.y, key.z, key.w};
            for (std::size_t i = 0; i < width; ++i) {
                floats[i] = static_cast<float>(section.path ? values[i] : key.time);
            }
            floats = floats.subspan(width);
        }
    }
    return floats;
}

/// Tells when the file takes the place of another one of the same export.
void noteFile(const GltfDocument& document, const ChannelTarget& target, const std::string& uri,
              Bytes content) {
    const std::size_t mark = std::hash<std::string_view>()(
        std::string_view(reinterpret_cast<const char*>(content.data()), content.size()));
    const auto [file, isNew] = target.files.try_emplace(uri, mark);
    // The last buffer is that of the animation itself.
    const bool losesOther = isNew ? std::any_of(document.buffers.begin(), document.buffers.end() - 1,
                                                [&](const auto& buffer) { return buffer->uri == uri; })
                                  : file->second != mark;
    file->second = mark;
    if (losesOther) {
        target.report.warn("an animation is written as " + uri.substr(0, 40) +
                           " in the place of another buffer of that name, whose contents are lost");
    }
}

} // namespace

bool writeChannels(AnimationTracks& animation, GltfDocument& document, const ChannelTarget& target) {
    std::vector<KeyedChannel>& channels = animation.channels;
    if (std::ranges::all_of(channels, [](const KeyedChannel& channel) { return channel.keys.empty(); })) {
        return false;
    }
    std::vector<Section> sections = sectionsOf(channels);
    GltfBuffer& buffer = addRecord(document.buffers);
    std::string name = animation.name + ".bin";
    fileSafeName(name);
    buffer.uri = target.names.usable(name, buffer.index, target.folder, target.report);
    for (Section& section : sections) {
        addView(document, buffer.index, section);
    }
    for (const Section& section : sections) {
        buffer.byteLength += addAccessors(document, channels, section, buffer.byteLength);
    }

    BufferContent content;
    FloatBlocks& numbers = content.numbers.emplace_back(target.folder.memory());
    const std::span<float> all = numbers.grow(static_cast<std::size_t>(buffer.byteLength / kFloatSize));
    std::span<float> rest = all;
    for (const Section& section : sections) {
        rest = fillSection(channels, section, rest);
    }
    animation.xforms.clear();
    animation.trackByNode.clear();
    for (KeyedChannel& channel : channels) {
        channel.keys = {};
    }
    content.pieces.push_back(std::as_bytes(all));
    noteFile(document, target, buffer.uri, content.pieces.back());
    target.folder.write(buffer.uri, std::move(content), Existing::givesWay);
    return !target.report.hasFailed();
}

} // namespace orvane::animation
