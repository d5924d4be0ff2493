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
#include <sstream>

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

/// Each line ends with its line feed, so that a missing one shows.
std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size() - 1) + 1;
        lines.push_back(text.substr(at, end - at));
        at = end;
    }
    return lines;
}

/// Fails with the place where the texts part: three lines before it, and the next ones of both.
void expectSame(const std::string& actual, const std::string& expected) {
    const std::vector<std::string> now = linesOf(actual);
    const std::vector<std::string> known = linesOf(expected);
    const auto [here, there] = std::ranges::mismatch(now, known);
    if (here == now.end() && there == known.end()) {
        return;
    }
    std::ostringstream out;
    const auto print = [&](const char* mark, auto line, auto end) {
        for (; line != end; ++line) {
            out << mark << *line;
        }
    };
    print("  ", here - std::min<std::ptrdiff_t>(3, here - now.begin()), here);
    print("- ", there, there + std::min<std::ptrdiff_t>(5, known.end() - there));
    print("+ ", here, here + std::min<std::ptrdiff_t>(5, now.end() - here));
    ADD_FAILURE() << "line " << here - now.begin() + 1 << " is another one:\n" << out.str();
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
