// Whole exports of a small assembly that has everything, against what they are known to be. When the output
// is meant to change, run the test program once with ORVANE_REGENERATE=1 in its environment, and read the
// difference before it is committed.

#include "model/ModelReader.h"
#include "support/ExportRun.h"
#include "support/Paths.h"

#include <gtest/gtest.h>

#include <algorithm>
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

/// The name of a file with its size and hash.
std::string summary(const std::string& name, const std::string& bytes) {
    return name + " " + std::to_string(bytes.size()) + " " + std::to_string(hashOf(bytes)) + "\n";
}

/// Fails with the line in which the texts part, and what follows it in both.
void expectSame(const std::string& actual, const std::string& expected) {
    const auto same = std::ranges::mismatch(actual, expected).in1 - actual.begin();
    if (actual != expected) {
        const std::string before = actual.substr(0, static_cast<std::size_t>(same));
        const std::size_t start = before.rfind('\n') + 1;
        ADD_FAILURE() << "line " << std::ranges::count(before, '\n') + 1 << " is another one; known:\n"
                      << expected.substr(start, 300) << "\n\nnow:\n"
                      << actual.substr(start, 300);
    }
}

/// The model in a session of its own, with all that can be asked for switched on.
struct RackRun : ExportRun {
    RackRun() : ExportRun(readModel(kFolder + "rack.tfgasm")) {
        exporter.setOptions({.exportViews = kSwitchOn,
                             .exportCameras = kSwitchOn,
                             .exportLights = kSwitchOn,
                             .exportAnimations = kSwitchOn,
                             .exportExplodedViews = kSwitchOn});
    }
};

TEST(Golden, AnAssemblyComesOutByteForByte) {
    RackRun run;
    const std::string text = run.run("rack.gltf");
    std::string files = summary("rack.glb", RackRun().run("rack.glb"));
    for (const std::string& name : run.folder.names("rack")) {
        files += summary("rack/" + name, readFile(run.folder / ("rack/" + name)));
    }
    if (std::getenv("ORVANE_REGENERATE")) {
        writeFile(kFolder + "rack.gltf", text);
        writeFile(kFolder + "files.txt", files);
    }
    expectSame(text, readFile(kFolder + "rack.gltf"));
    expectSame(files, readFile(kFolder + "files.txt"));
}

} // namespace
} // namespace orvane
