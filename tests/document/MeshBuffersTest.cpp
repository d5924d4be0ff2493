#include "document/MeshBuffers.h"

#include "support/MemoryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <initializer_list>
#include <numeric>

namespace orvane {
namespace {

using testing::ElementsAre;

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
    EXPECT_THAT(folder.values<float>(name, 0, 9), testing::Each(1.0f));
    EXPECT_THAT(folder.values<float>(name, 36, 9), testing::Each(1.25f));
    EXPECT_THAT(folder.values<float>(name, 72, 6), testing::Each(1.5f));
    EXPECT_THAT(folder.values<std::uint16_t>(name, 96, 4), ElementsAre(0, 1, 2, 0));

    EXPECT_EQ(document.buffers[0]->byteLength, 104);
    const auto view = [&](std::size_t i) { return *document.bufferViews[i]; };
    EXPECT_THAT((std::vector{view(0).byteOffset, view(1).byteOffset, view(2).byteOffset, view(3).byteOffset}),
                ElementsAre(0, 36, 72, 96));
    EXPECT_THAT((std::vector{view(0).byteLength, view(1).byteLength, view(2).byteLength, view(3).byteLength}),
                ElementsAre(36, 36, 24, 6));
    EXPECT_THAT((std::vector{view(0).byteStride, view(1).byteStride, view(2).byteStride, view(3).byteStride}),
                ElementsAre(12, 12, 8, 0));
    EXPECT_EQ(view(2).target, BufferTarget::vertices);
    EXPECT_EQ(view(3).target, BufferTarget::indices);
    EXPECT_EQ(primitive(0).indices, 0)
        << "accessors are made in the order indices, positions, normals, coordinates";
    EXPECT_EQ(primitive(0).position, 1);
    EXPECT_EQ(primitive(0).normal, 2);
    EXPECT_EQ(primitive(0).texcoord, 3);
    EXPECT_EQ(primitive(0).material, 0);
    EXPECT_EQ(document.nodes[0]->mesh, 0);
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

TEST_F(MeshBuffersTest, StartBoundsWhereReadersExpectThem) {
    addPositions({-1, 2, -3, -4, 5, -6, -7, 0.5f, -9});
    write("negative");
    EXPECT_THAT(bounds(), ElementsAre(-7, 0.5f, -9, kSmallestNormal, 5, kSmallestNormal));
}

TEST_F(MeshBuffersTest, LetOnlyAValueStrictlyBeyondMoveABound) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    addPositions({5, nan, 1, -0.0f, nan, 1, 3, nan, 1, /* second triangle */ 0.0f, nan, 1, 0.0f, nan, 1, 0.0f,
                  nan, 2});
    write("zeros");
    EXPECT_THAT(bounds(), ElementsAre(0, kLargest, 1, 5, kSmallestNormal, 2));
    EXPECT_TRUE(std::signbit(bounds()[0])) << "of two zeros the first one stays";
}

TEST_F(MeshBuffersTest, TakeMaterialsInTheOrderOfTheirMaking) {
    GltfMaterial& unused = makeMaterial(document);
    GltfMaterial& late = makeMaterial(document);
    GltfMaterial& later = makeMaterial(document);
    for (GltfMaterial* material : {&unused, &late, &later}) {
        registerMaterial(document, *material);
    }
    addTriangles(2, 30, &later);
    addTriangles(1, 20, &late);
    addTriangles(1, 10);
    const std::string name = write("materials");
    EXPECT_THAT(folder.values<float>(name, 0, 4 * 9), testing::Contains(10.0f).Times(9));
    EXPECT_EQ(folder.values<float>(name, 0, 1)[0], 10.0f);
    EXPECT_EQ(folder.values<float>(name, 36, 1)[0], 20.0f);
    EXPECT_EQ(folder.values<float>(name, 72, 1)[0], 30.0f);
    EXPECT_EQ(folder.values<float>(name, 4 * 36, 1)[0], 10.25f) << "normals follow all positions";
    EXPECT_EQ(primitive(0).material, 0);
    EXPECT_EQ(primitive(1).material, 1);
    EXPECT_EQ(primitive(2).material, 2);
    EXPECT_EQ(accessor(primitive(2).position).byteOffset, 72);
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
    folder.files["b-1.bin"];
    folder.files["c.d.bin"];
    for (const auto& [wanted, given] :
         std::vector<std::pair<std::string, std::string>>{{"a", "a.bin"},
                                                          {"a", "a-1.bin"},
                                                          {"a", "a-1-2.bin"},
                                                          {"a", "a-1-2-3.bin"},
                                                          {"a-1", "a-1-1.bin"},
                                                          {"b", "b.bin"},
                                                          {"b", "b-1-2.bin"},
                                                          {"c.d", "c.d-1.bin"}}) {
        addTriangles(1);
        EXPECT_EQ(write(wanted), given);
    }
    EXPECT_TRUE(report.warnings.empty());
}

TEST_F(MeshBuffersTest, GiveAShortNameToWhatTheSystemCannotTake) {
    const std::string longName(252, 'n');
    addTriangles(1);
    EXPECT_EQ(write(std::string(251, 'n')), std::string(251, 'n') + ".bin");
    EXPECT_TRUE(report.warnings.empty());
    folder.files["buffer-1.bin"];
    addTriangles(1);
    EXPECT_EQ(write(longName), "buffer-1-1.bin");
    addTriangles(1);
    EXPECT_EQ(write(longName), "buffer-2.bin");
    addTriangles(1);
    EXPECT_EQ(write(std::string("z\0", 2)), "buffer-3.bin");
    EXPECT_THAT(report.warnings, ElementsAre(testing::HasSubstr("is longer than 255 bytes"),
                                             testing::HasSubstr("holds a zero byte")))
        << "one warning a name";
}

} // namespace
} // namespace orvane
