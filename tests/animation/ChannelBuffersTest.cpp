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

    /// One line for each accessor: view, offset, count and type.
    std::vector<std::string> accessorTexts() const {
        std::vector<std::string> texts;
        for (const auto& accessor : document.accessors) {
            texts.push_back(std::to_string(accessor->bufferView) + " " +
                            std::to_string(accessor->byteOffset) + " " + std::to_string(accessor->count) +
                            " " +
                            (accessor->type == AccessorType::scalar ? "SCALAR"
                             : accessor->type == AccessorType::vec3 ? "VEC3"
                                                                    : "VEC4"));
        }
        return texts;
    }

    /// One line for each view: buffer, offset, length, stride and target.
    std::vector<std::string> viewTexts() const {
        std::vector<std::string> texts;
        for (const auto& view : document.bufferViews) {
            texts.push_back(std::to_string(view->buffer) + " " + std::to_string(view->byteOffset) + " " +
                            std::to_string(view->byteLength) + " " + std::to_string(view->byteStride) + " " +
                            std::to_string(static_cast<int>(view->target)));
        }
        return texts;
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
    EXPECT_THAT(viewTexts(), ElementsAre("1 0 24 4 34963", "1 24 48 12 34962", "1 72 32 16 34962"));
    EXPECT_THAT(accessorTexts(), ElementsAre("0 0 2 SCALAR", "0 8 2 SCALAR", "0 16 2 SCALAR", "1 0 2 VEC3",
                                             "1 24 2 VEC3", "2 0 2 VEC4"));
    EXPECT_EQ(document.buffers[1]->byteLength, 104);
    EXPECT_EQ(document.buffers[1]->uri, "a_b_c.bin");
    EXPECT_THAT(folder.values<float>("a_b_c.bin", 0, 26),
                ElementsAre(0, 0.5f, 0, 1, 0, 2, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 0.1f, 0.2f, 0.3f,
                            0.4f, -1, -2, -3, -4));
    std::vector<std::pair<int, int>> ends;
    for (const KeyedChannel& written : animation.channels) {
        ends.emplace_back(written.record.input, written.record.output);
        EXPECT_THAT(written.keys, IsEmpty());
    }
    EXPECT_THAT(ends, ElementsAre(std::pair(0, 3), std::pair(1, 5), std::pair(2, 4)));
}

TEST_F(ChannelBuffers, LeavesOutTheViewOfAPathThatNoChannelHas) {
    ASSERT_TRUE(write("r", {channel(kRotation, {{0}, {1}})}));
    EXPECT_THAT(viewTexts(), ElementsAre("0 0 8 4 34963", "0 8 32 16 34962"));
    ASSERT_TRUE(write("t", {channel(kTranslation, {{0}, {1}})}));
    EXPECT_EQ(document.buffers[1]->byteLength, 32);
}

TEST_F(ChannelBuffers, AddsNothingWithoutKeys) {
    EXPECT_FALSE(write("a", {}));
    EXPECT_FALSE(write("a", {channel(kTranslation, {}), channel(kRotation, {})}));
    EXPECT_TRUE(document.buffers.empty() && document.bufferViews.empty() && document.accessors.empty());
    EXPECT_THAT(folder.files, IsEmpty());
}

TEST_F(ChannelBuffers, TakesThePlaceOfAFileOfItsNameAndTellsOfLosses) {
    addRecord(document.buffers).uri = "mesh.bin";
    folder.files["earlier.bin"] = "of another export";
    write("earlier", {channel(kTranslation, {{0}, {1}})});
    write("a:b", {channel(kTranslation, {{0}, {1}})});
    write("a b", {channel(kTranslation, {{0}, {1}})});
    EXPECT_THAT(report.warnings, IsEmpty()) << "nothing is lost by writing the same again";
    write("a b", {channel(kTranslation, {{0}, {1}, {2}})});
    EXPECT_THAT(report.warnings, ElementsAre(HasSubstr("a_b.bin")));
    EXPECT_EQ(folder.files.at("a_b.bin").size(), 48u);
    EXPECT_EQ(document.buffers[2]->byteLength, 32) << "the earlier record stays as it was";
    write("mesh", {channel(kTranslation, {{0}, {1}})});
    EXPECT_THAT(report.warnings, ElementsAre(HasSubstr("a_b.bin"), HasSubstr("mesh.bin")));
}

TEST_F(ChannelBuffers, GetsAShortNameWhereTheSystemTakesNone) {
    const std::string longName(300, 'x');
    write(longName, {channel(kTranslation, {{0}, {1}})});
    write(longName, {channel(kTranslation, {{0}, {1}})});
    EXPECT_EQ(document.buffers[0]->uri, "buffer-0.bin");
    EXPECT_EQ(document.buffers[1]->uri, "buffer-1.bin");
    EXPECT_THAT(report.warnings, ElementsAre(HasSubstr("buffer-0.bin")));
}

} // namespace
} // namespace orvane::animation
