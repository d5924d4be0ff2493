#include "model/records/ModelError.h"
#include "model/step/StepReader.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace orvane::step {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(StlFile, IsReadInBothKinds) {
    const TemporaryFolder folder;
    const auto read = [&](const std::string& bytes) {
        writeFile(folder / "file.STL", bytes);
        std::vector<std::string> warnings;
        const std::vector<FaceRecord> faces = readShapeFile(folder / "file.STL", {}, warnings);
        EXPECT_EQ(faces.size(), 1u);
        return faces.at(0);
    };

    const std::string ascii =
        "solid a name with words\n facet normal 0 0 0\n  outer loop\n   vertex 0 0 0\n"
        "   vertex 2 0 0\n   VERTEX 0 +3.5e-1 0\n  endloop\n endfacet\nendsolid a\n"
        "solid\nfacet normal nan nan nan\nouter loop\nvertex 1 1 1\nvertex 1 1 1\nvertex 0 0 0\n"
        "endloop\nendfacet\nendsolid\n";
    const FaceRecord face = read(ascii);
    EXPECT_THAT(face.positions, ElementsAre(0, 0, 0, 2, 0, 0, 0, .35f, 0, 1, 1, 1, 1, 1, 1, 0, 0, 0));
    EXPECT_THAT(face.normals, ElementsAre(0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(face.texCoords, IsEmpty());

    std::string binary = "solid, which this is not" + std::string(56, ' ') + std::string("\1\0\0\0", 4);
    const float numbers[] = {0, 0, 0, 0, 0, 0,
                             0, 4, 0, 0, 0, 4}; // little-endian, as the machines of the tests
    binary.append(reinterpret_cast<const char*>(numbers), sizeof numbers).append(2, '\0');
    EXPECT_THAT(read(binary).normals, ElementsAre(1, 0, 0, 1, 0, 0, 1, 0, 0));

    const std::pair<std::string, const char*> kBad[] = {
        {"", "expected an STL file"},
        {"solid\nendsolid\n", "found no triangle"},
        {"solid\nfacet normal 0 0 1\nouter loop\nvertex 0 x 0\n", "line 4: found 'x', expected a number"},
        {"solid\nfacet normal 0 0 1\nouter loop", "found the end of the file, expected vertex"},
        {binary.substr(0, binary.size() - 20).replace(0, 5, "SHELL"),
         "expected 134 by the number of triangles"},
    };
    for (const auto& [bytes, message] : kBad) {
        EXPECT_THAT([&] { read(bytes); }, testing::ThrowsMessage<ModelError>(HasSubstr(message)));
    }
}

} // namespace
} // namespace orvane::step
