#include "document/GlbMerge.h"
#include "document/GlbWriter.h"
#include "document/WorkingBufferFolder.h"

#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <list>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::FieldsAre;

struct GlbMergeTest : testing::Test {
    /// A buffer with one view over all of it. A later one of the same name takes the file of the earlier one.
    void addBuffer(const std::string& name, const std::string& content) {
        contents.push_back(content);
        folder.write(name, {.streams = {}, .pieces = {std::as_bytes(std::span(contents.back()))}},
                     Existing::stays);
        GltfBuffer& buffer = addRecord(document.buffers);
        buffer.uri = name;
        buffer.byteLength = static_cast<std::int64_t>(content.size());
        addRecord(document.bufferViews).buffer = buffer.index;
    }

    void addTexture(const std::string& source, const std::string& name) {
        GltfImage& image = addRecord(document.images);
        image.sourcePath = source;
        image.name = name;
        addRecord(document.textures).source = image.index;
    }

    /// Merges, and gives what the single buffer holds.
    std::string merge() {
        const auto maker = [&](const std::string& source, std::string&, bool) {
            OutputFile picture = OutputFile::create(disk.path().string());
            return picture.appendFile(source) ? std::optional(std::move(picture)) : std::nullopt;
        };
        OutputFile merged = OutputFile::create(disk.path().string());
        for (const FileRange& range : mergeBuffers(document, folder, maker)) {
            folder.copyTo(merged, range);
        }
        EXPECT_EQ(merged.placeNew(disk / "merged"), Placing::placed);
        return readFile(disk / "merged");
    }

    TemporaryFolder disk;
    std::list<std::string> contents; ///< of the buffers, which the folder may hold on to
    ExportReport report;
    WorkingBufferFolder folder{disk.path().string(), report};
    GltfDocument document;
};

TEST_F(GlbMergeTest, PutsAllBuffersIntoOneAndReadsALaterFileOfTheSameNameForBoth) {
    addBuffer("study.bin", "old!");
    addBuffer("between.bin", "----");
    addBuffer("study.bin", "newer!!!");
    document.bufferViews[2]->byteOffset = 4;
    EXPECT_EQ(merge(), "newer!!!----newer!!!");
    ASSERT_EQ(document.buffers.size(), 1u);
    EXPECT_EQ(document.buffers[0]->byteLength, 16) << "the recorded lengths";
    EXPECT_EQ(document.buffers[0]->uri, "");
    std::vector<std::pair<std::int64_t, std::int32_t>> views;
    for (const auto& view : document.bufferViews) {
        views.emplace_back(view->byteOffset, view->buffer);
    }
    EXPECT_THAT(views, ElementsAre(FieldsAre(0, 0), FieldsAre(4, 0), FieldsAre(12, 0)));
    EXPECT_EQ(disk.names(), std::set<std::string>{"merged"});
}

TEST_F(GlbMergeTest, EmbedsPicturesBehindTheBuffers) {
    writeFile(disk / "source.png", "PNG");
    writeFile(disk / "photo", "JPEGDATA");
    addBuffer("a.bin", "aaaa");
    addTexture(disk / "source.png", "x.tif");
    addTexture(disk / "missing", "missing.png");
    addTexture(disk / "photo", "photo.JPEG");
    addRecord(document.textures).source = 0;
    EXPECT_EQ(merge(), "aaaaPNGJPEGDATAPNG") << "a shared picture is embedded again, without any padding";
    EXPECT_EQ(document.buffers[0]->byteLength, 18);
    const auto expectPicture = [&](std::size_t image, const std::string& mimeType, std::int64_t offset,
                                   std::int64_t length) {
        EXPECT_EQ(document.images[image]->mimeType, mimeType);
        const auto view = static_cast<std::size_t>(document.images[image]->bufferView);
        EXPECT_EQ(document.bufferViews.at(view)->byteOffset, offset);
        EXPECT_EQ(document.bufferViews[view]->byteLength, length);
    };
    expectPicture(0, "image/png", 15, 3);
    expectPicture(2, "image/jpeg", 7, 8);
    EXPECT_EQ(document.images[1]->bufferView, -1);
    EXPECT_EQ(disk.names(), (std::set<std::string>{"merged", "source.png", "photo"}));
}

/// The bytes of a container with the given text and binary content.
std::string container(const std::string& json, const std::string& binary) {
    TemporaryFolder disk;
    OutputFile file = OutputFile::create(disk.path().string());
    GlbWriter glb(file);
    glb.writeHeader();
    glb.beginJsonChunk();
    glb.writeJson(json);
    glb.endJsonChunk();
    glb.beginBinChunk();
    file.write(binary);
    glb.endBinChunk();
    glb.finish();
    EXPECT_EQ(file.placeNew(disk / "x.glb"), Placing::placed);
    return readFile(disk / "x.glb");
}

TEST(GlbWriter, PadsBothChunksToMultiplesOfFour) {
    using namespace std::string_literals;
    EXPECT_EQ(container("{  }", ""), "glTF\x02\0\0\0\x20\0\0\0\x04\0\0\0JSON{  }\0\0\0\0BIN\0"s);
    EXPECT_EQ(container("{   }", "abcdef"),
              "glTF\x02\0\0\0\x2C\0\0\0\x08\0\0\0JSON{   }   \x08\0\0\0BIN\0abcdef\0\0"s);
    EXPECT_EQ(container("{\"a\":1}", "abc"),
              "glTF\x02\0\0\0\x28\0\0\0\x08\0\0\0JSON{\"a\":1} \x04\0\0\0BIN\0abc\0"s);
}

} // namespace
} // namespace orvane
