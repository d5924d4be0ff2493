// Whole exports of a small assembly against what they are known to be. When the output is meant to change,
// run the test program once with ORVANE_REGENERATE=1 in its environment, and read the difference before it is
// committed.

#include "model/ModelReader.h"
#include "support/ExportRun.h"
#include "support/Paths.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>

namespace orvane {
namespace {

const std::string kFolder = sourceFolder() + "/tests/golden/";

/// The FNV-1a hash of 64 bits.
std::uint64_t hashOf(const std::string& bytes) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char byte : bytes) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    }
    return hash;
}

/// Every file of a text export, and the binary one, with its size and hash.
std::string summary(const TemporaryFolder& folder) {
    std::string lines;
    const auto add = [&](const std::string& name, const std::string& bytes) {
        lines += name + " " + std::to_string(bytes.size()) + " " + std::to_string(hashOf(bytes)) + "\n";
    };
    add("rack.glb", readFile(folder / "rack.glb"));
    for (const std::string& name : folder.names("rack")) {
        add("rack/" + name, readFile(folder / ("rack/" + name)));
    }
    return lines;
}

TEST(Golden, AnAssemblyComesOutByteForByte) {
    ExportRun run(readModel(kFolder + "rack.tfgasm"));
    const std::string text = run.run("rack.gltf");
    run.run("rack.glb");
    const std::string files = summary(run.folder);
    if (std::getenv("ORVANE_REGENERATE")) {
        writeFile(kFolder + "rack.gltf", text);
        writeFile(kFolder + "files.txt", files);
    }
    EXPECT_EQ(text, readFile(kFolder + "rack.gltf"));
    EXPECT_EQ(files, readFile(kFolder + "files.txt"));
}

} // namespace
} // namespace orvane
