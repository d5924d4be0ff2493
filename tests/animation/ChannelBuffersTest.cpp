#include "animation/ChannelBuffers.h"

#include "support/MemoryFolder.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace orvane::animation {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

constexpr auto kTranslation = ChannelPath::translation;
constexpr auto kRotation = ChannelPath::rotation;

struct ChannelBuffers : testing::Test {
    bool write(const std::string& name, std::vector<KeyedChannel> channels) {
        animation = {.name = name};
        animation.channels = std::move(channels);
        return writeChannels(animation, document, {folder, names, report, files});
    }

    static KeyedChannel channel(ChannelPath path, std::vector<ChannelKey> keys) {
        return {{.path = path}, std::move(keys)};
    }

    AnimationTracks animation;
    GltfDocument document;
    MemoryFolder folder;
    BufferNames names;
    ExportReport report;
    AnimationFiles files;
};

TEST_F(ChannelBuffers, LaysOutTimesThenTranslationsThenRotations) {
    addRecord(document.buffers).uri = "mesh.bin";
    ASSERT_TRUE(write("a b:c", {channel(kTranslation, {{0, 1, 2, 3}, {0.5, 4, 5, 6}}),
                                channel(kRotation, {{0, 0.1, 0.2, 0.3, 0.4}, {1, -1, -2, -3, -4}}),
                                channel(kTranslation, {{0, 7, 8, 9}, {2, 10, 11, 12}})}));
    EXPECT_EQ(document.buffers[1]->byteLength, 104);
    EXPECT_THAT(folder.values<float>("a_b_c.bin", 0, 26),
                ElementsAre(0, 0.5f, 0, 1, 0, 2, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 0.1f, 0.2f, 0.3f,
                            0.4f, -1, -2, -3, -4));
    std::vector<std::pair<int, int>> ends;
    for (const KeyedChannel& written : animation.channels) {
        ends.emplace_back(written.record.input, written.record.output);
        EXPECT_THAT(written.keys, IsEmpty());
    }
    EXPECT_THAT(ends, ElementsAre(Pair(0, 3), Pair(1, 5), Pair(2, 4)));

    ASSERT_TRUE(write("r", {channel(kRotation, {{0}, {1}})}));
    std::vector<std::array<std::int64_t, 5>> views;
    for (const auto& view : document.bufferViews) {
        views.push_back({view->buffer, view->byteOffset, view->byteLength, view->byteStride,
                         static_cast<std::int64_t>(view->target)});
    }
    EXPECT_THAT(views, ElementsAre(ElementsAre(1, 0, 24, 4, 34963), ElementsAre(1, 24, 48, 12, 34962),
                                   ElementsAre(1, 72, 32, 16, 34962), ElementsAre(2, 0, 8, 4, 34963),
                                   ElementsAre(2, 8, 32, 16, 34962)));
    std::vector<std::array<std::int64_t, 4>> accessors;
    for (const auto& accessor : document.accessors) {
        accessors.push_back({accessor->bufferView, accessor->byteOffset, accessor->count,
                             accessor->type == AccessorType::scalar ? 1
                             : accessor->type == AccessorType::vec3 ? 3
                                                                    : 4});
    }
    EXPECT_THAT(accessors,
                ElementsAre(ElementsAre(0, 0, 2, 1), ElementsAre(0, 8, 2, 1), ElementsAre(0, 16, 2, 1),
                            ElementsAre(1, 0, 2, 3), ElementsAre(1, 24, 2, 3), ElementsAre(2, 0, 2, 4),
                            ElementsAre(3, 0, 2, 1), ElementsAre(4, 0, 2, 4)));
}

TEST_F(ChannelBuffers, AddsNothingWithoutKeys) {
    EXPECT_FALSE(write("a", {}));
    EXPECT_FALSE(write("a", {channel(kTranslation, {}), channel(kRotation, {})}));
    EXPECT_TRUE(document.buffers.empty() && document.bufferViews.empty() && document.accessors.empty());
    EXPECT_THAT(folder.files, IsEmpty());
}

TEST_F(ChannelBuffers, TakesThePlaceOfAFileOfItsNameAndTellsOfLosses) {
    addRecord(document.buffers).uri = "mesh.bin";
    folder.files["a_b.bin"] = "of an earlier export";
    const std::vector<KeyedChannel> moves = {channel(kTranslation, {{0}, {1}})};
    write("a:b", moves);
    write("a b", moves);
    EXPECT_THAT(report.warnings, IsEmpty()) << "nothing is lost by writing the same again";
    write("a b", {channel(kTranslation, {{0}, {1}, {2}})});
    EXPECT_EQ(folder.files.at("a_b.bin").size(), 48u);
    EXPECT_EQ(document.buffers[1]->byteLength, 32) << "the earlier record stays as it was";
    write("mesh", moves);
    write(std::string(300, 'x'), moves);
    EXPECT_EQ(document.buffers[5]->uri, "buffer-5.bin") << "the system takes no name of that length";
    EXPECT_THAT(report.warnings,
                ElementsAre(HasSubstr("a_b.bin"), HasSubstr("mesh.bin"), HasSubstr("buffer-5.bin")));
}

} // namespace
} // namespace orvane::animation
