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
    /// A buffer with one view over all of it; `content` may differ from `length` where a later file took the
    /// name.
    void addBuffer(const std::string& name, const std::string& content) {
        contents.push_back(content);
        folder.write(name, {.streams = {}, .pieces = {std::as_bytes(std::span(contents.back()))}});
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
        const auto copier = [&](const std::string& source, std::string& name, bool) {
            if (std::filesystem::exists(source)) {
                std::filesystem::copy_file(source, disk / ("working-" + name));
            }
            return disk / ("working-" + name);
        };
        OutputFile merged = OutputFile::create(disk / "merged");
        for (const FileRange& range : mergeBuffers(document, folder, copier)) {
            folder.copyTo(merged, range);
        }
        merged.close();
        return readFile(disk / "merged");
    }

    TemporaryFolder disk;
    std::list<std::string> contents; ///< of the buffers, which the folder may hold on to
    ExportReport report;
    WorkingBufferFolder folder{disk.path().string(), report};
    GltfDocument document;
};

TEST_F(GlbMergeTest, PutsAllBuffersIntoOne) {
    addBuffer("a.bin", "aaaa");
    addBuffer("b.bin", "bbbbbbbb");
    document.bufferViews[1]->byteOffset = 4;
    EXPECT_EQ(merge(), "aaaabbbbbbbb");
    ASSERT_EQ(document.buffers.size(), 1u);
    EXPECT_EQ(document.buffers[0]->byteLength, 12);
    EXPECT_EQ(document.buffers[0]->uri, "");
    EXPECT_EQ(document.bufferViews[0]->byteOffset, 0);
    EXPECT_EQ(document.bufferViews[1]->byteOffset, 8);
    EXPECT_EQ(document.bufferViews[1]->buffer, 0);
    EXPECT_EQ(disk.names(), std::set<std::string>{"merged"});
}

TEST_F(GlbMergeTest, ReadsALaterFileOfTheSameNameForBothAndCountsTheRecordedLengths) {
    addBuffer("study.bin", "old!");
    addBuffer("between.bin", "----");
    addBuffer("study.bin", "newer!!!");
    EXPECT_EQ(merge(), "newer!!!----newer!!!");
    EXPECT_EQ(document.bufferViews[1]->byteOffset, 4);
    EXPECT_EQ(document.bufferViews[2]->byteOffset, 8);
    EXPECT_EQ(document.buffers[0]->byteLength, 16);
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
    const auto view = [&](std::size_t image) {
        return *document.bufferViews[static_cast<std::size_t>(document.images[image]->bufferView)];
    };
    EXPECT_EQ(document.images[0]->mimeType, "image/png");
    EXPECT_EQ(view(0).byteOffset, 15);
    EXPECT_EQ(view(0).byteLength, 3);
    EXPECT_EQ(document.images[1]->bufferView, -1);
    EXPECT_EQ(document.images[2]->mimeType, "image/jpeg");
    EXPECT_EQ(view(2).byteOffset, 7);
    EXPECT_EQ(document.buffers[0]->byteLength, 18);
    EXPECT_EQ(disk.names(), (std::set<std::string>{"merged", "source.png", "photo"}))
        << "working copies are gone";
}

/// The bytes of a container with the given text and binary content.
std::string container(const std::string& json, const std::string& binary) {
    TemporaryFolder disk;
    OutputFile file = OutputFile::createTemporary(disk.path().string());
    GlbWriter glb(file);
    glb.writeHeader();
    glb.beginJsonChunk();
    glb.writeJson(json);
    glb.endJsonChunk();
    glb.beginBinChunk();
    file.write(binary);
    glb.endBinChunk();
    glb.finish();
    EXPECT_TRUE(file.moveTo(disk / "x.glb"));
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
