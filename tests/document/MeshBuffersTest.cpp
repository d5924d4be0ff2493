#include "document/MeshBuffers.h"

#include "support/MemoryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <numeric>

namespace orvane {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr float kLargest = 3.40282347e+38f;
constexpr float kSmallestNormal = 1.17549435e-38f;

/// Everything that the mesh buffers of an export need, and the nodes that they go to.
struct MeshBuffersTest : testing::Test {
    GltfNode& node(const std::string& name) {
        GltfNode& made = addRecord(document.nodes);
        made.name = name;
        return made;
    }

    /// Writes one mesh and gives the name of its buffer.
    std::string write(const std::string& name, bool limitPrimitiveSize = true) {
        writeMeshBuffers(document, node(name), streams, {folder, names, report, limitPrimitiveSize});
        EXPECT_TRUE(streams.empty());
        return document.buffers.back()->uri;
    }

    GeomStream& streamOf(GltfMaterial* material) {
        return streams.try_emplace(material, folder.memory()).first->second;
    }

    /// Adds triangles of which every number has the given value.
    void addTriangles(std::size_t count, float value = 1, GltfMaterial* material = nullptr) {
        GeomStream& stream = streamOf(material);
        std::ranges::fill(stream.positions.grow(9 * count), value);
        std::ranges::fill(stream.normals.grow(9 * count), value + 0.25f);
        std::ranges::fill(stream.texCoords.grow(6 * count), value + 0.5f);
    }

    void addPositions(std::initializer_list<float> positions) {
        GeomStream& stream = streamOf(nullptr);
        std::ranges::copy(positions, stream.positions.grow(positions.size()).begin());
        stream.normals.grow(positions.size());
        stream.texCoords.grow(positions.size() / 3 * 2);
    }

    const GltfPrimitive& primitive(std::size_t position) const {
        return document.meshes.back()->primitives[position];
    }
    const GltfAccessor& accessor(std::int32_t index) const {
        return *document.accessors[static_cast<std::size_t>(index)];
    }
    AccessorBounds bounds() const { return *accessor(primitive(0).position).bounds; }

    GltfDocument document;
    MemoryFolder folder;
    GeomStreams streams;
    BufferNames names;
    ExportReport report;
};

TEST_F(MeshBuffersTest, LayTheFourRegionsBehindOneAnother) {
    addTriangles(1);
    const std::string name = write("Part 1");
    EXPECT_EQ(name, "Part_1.bin");
    EXPECT_EQ(folder.files[name].size(), 104u) << "36 + 36 + 24 + 6, and 2 to a multiple of 4";
    EXPECT_EQ(document.buffers[0]->byteLength, 104);
    EXPECT_THAT(folder.values<float>(name, 0, 9), Each(1.0f));
    EXPECT_THAT(folder.values<float>(name, 36, 9), Each(1.25f));
    EXPECT_THAT(folder.values<float>(name, 72, 6), Each(1.5f));
    EXPECT_THAT(folder.values<std::uint16_t>(name, 96, 4), ElementsAre(0, 1, 2, 0));
    std::vector<std::array<std::int64_t, 3>> views;
    for (const auto& view : document.bufferViews) {
        views.push_back({view->byteOffset, view->byteLength, view->byteStride});
    }
    EXPECT_THAT(views, ElementsAre(ElementsAre(0, 36, 12), ElementsAre(36, 36, 12), ElementsAre(72, 24, 8),
                                   ElementsAre(96, 6, 0)));
}

TEST_F(MeshBuffersTest, SplitWhatIndicesCannotReach) {
    addTriangles(21'667);
    const std::string name = write("big");
    ASSERT_EQ(document.meshes[0]->primitives.size(), 2u);
    ASSERT_EQ(document.accessors.size(), 8u);
    EXPECT_EQ(accessor(primitive(0).indices).count, 64'998);
    EXPECT_EQ(accessor(primitive(1).indices).count, 3);
    EXPECT_EQ(accessor(primitive(1).indices).byteOffset, 21'666 * 6);
    EXPECT_EQ(accessor(primitive(1).position).byteOffset, 21'666 * 36);
    EXPECT_EQ(accessor(primitive(1).texcoord).byteOffset, 21'666 * 24);
    EXPECT_EQ(accessor(primitive(1).position).bufferView, accessor(primitive(0).position).bufferView);
    EXPECT_THAT(folder.values<std::uint16_t>(name, 21'667 * 96 + 64'996 * 2, 5),
                ElementsAre(64996, 64997, 0, 1, 2));
}

TEST_F(MeshBuffersTest, WrapIndicesWithoutALimit) {
    addTriangles(43'691);
    const std::string name = write("wrapped", false);
    ASSERT_EQ(document.meshes[0]->primitives.size(), 1u);
    std::vector<std::uint16_t> expected(3 * 43'691);
    std::iota(expected.begin(), expected.end(), std::uint16_t{0});
    EXPECT_EQ(folder.values<std::uint16_t>(name, 43'691 * 96, expected.size()), expected);
}

TEST_F(MeshBuffersTest, StartBoundsWhereReadersExpectThemAndMoveThemByValuesStrictlyBeyond) {
    addPositions({-1, 2, -3, -4, 5, -6, -7, 0.5f, -9});
    write("negative");
    EXPECT_THAT(bounds(), ElementsAre(-7, 0.5f, -9, kSmallestNormal, 5, kSmallestNormal));
    const float nan = std::numeric_limits<float>::quiet_NaN();
    addPositions({5, nan, 1, -0.0f, nan, 1, 3, nan, 1, /* second triangle */ 0.0f, nan, 1, 0.0f, nan, 1, 0.0f,
                  nan, 2});
    write("zeros");
    EXPECT_THAT(bounds(), ElementsAre(0, kLargest, 1, 5, kSmallestNormal, 2));
    EXPECT_TRUE(std::signbit(bounds()[0])) << "of two zeros the first one stays";
}

TEST_F(MeshBuffersTest, TakeMaterialsInTheOrderOfTheirMaking) {
    std::vector<GltfMaterial*> made;
    for (int i = 0; i < 3; ++i) {
        made.push_back(&makeMaterial(document));
    }
    for (GltfMaterial* material : made) {
        registerMaterial(document, *material);
    }
    addTriangles(2, 30, made[2]);
    addTriangles(1, 20, made[1]);
    addTriangles(1, 10);
    const std::string name = write("materials");
    EXPECT_EQ(folder.values<float>(name, 0, 1)[0], 10.0f);
    EXPECT_EQ(folder.values<float>(name, 36, 1)[0], 20.0f);
    EXPECT_THAT(folder.values<float>(name, 72, 2 * 9), Each(30.0f));
    EXPECT_EQ(folder.values<float>(name, 4 * 36, 1)[0], 10.25f) << "normals follow all positions";
    for (std::int32_t i = 0; i < 3; ++i) {
        EXPECT_EQ(primitive(static_cast<std::size_t>(i)).material, i);
        EXPECT_EQ(accessor(primitive(static_cast<std::size_t>(i)).position).byteOffset, 36 * i);
    }
    EXPECT_THAT(folder.values<std::uint16_t>(name, 4 * 96, 12),
                ElementsAre(0, 1, 2, 0, 1, 2, 0, 1, 2, 3, 4, 5));
}

TEST_F(MeshBuffersTest, WriteAnEmptyFileForFacesWithoutTriangles) {
    streamOf(nullptr);
    const std::string name = write("empty");
    EXPECT_EQ(folder.files.at(name), "");
    EXPECT_TRUE(document.meshes[0]->primitives.empty());
    EXPECT_EQ(document.buffers[0]->byteLength, 0);
}

TEST_F(MeshBuffersTest, PileUpSuffixesOnTakenNames) {
    folder.files = {{"b-1.bin", ""}, {"c.d.bin", ""}};
    const std::pair<const char*, const char*> cases[] = {
        {"a", "a.bin"},       {"a", "a-1.bin"}, {"a", "a-1-2.bin"}, {"a", "a-1-2-3.bin"},
        {"a-1", "a-1-1.bin"}, {"b", "b.bin"},   {"b", "b-1-2.bin"}, {"c.d", "c.d-1.bin"}};
    for (const auto& [wanted, given] : cases) {
        EXPECT_EQ(write(wanted), given);
    }
    EXPECT_THAT(report.warnings, IsEmpty());
}

TEST_F(MeshBuffersTest, GiveAShortNameToWhatTheSystemCannotTake) {
    const std::string longName(252, 'n');
    EXPECT_EQ(write(std::string(251, 'n')), std::string(251, 'n') + ".bin");
    EXPECT_THAT(report.warnings, IsEmpty());
    folder.files["buffer-1.bin"];
    EXPECT_EQ(write(longName), "buffer-1-1.bin");
    EXPECT_EQ(write(longName), "buffer-2.bin");
    EXPECT_EQ(write(std::string("z\0", 2)), "buffer-3.bin");
    EXPECT_THAT(report.warnings, ElementsAre(testing::HasSubstr("is longer than 255 bytes"),
                                             testing::HasSubstr("holds a zero byte")))
        << "one warning a name";
}

} // namespace
} // namespace orvane
