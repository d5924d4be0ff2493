// Runs the built command as a person would.

#include "support/Paths.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <array>
#include <cstdio>
#include <sys/mount.h>
#include <sys/wait.h>

namespace orvane {
namespace {

using testing::ContainsRegex;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kPart = R"({"bodies": [{"faces": [{"positions": [0, 0, 0, 1, 0, 0, 0, 1, 0]}]}]})";

/// What a run of the command left behind.
struct Outcome {
    int status = -1;
    std::string output;
    std::string errors;
};

struct Command : testing::Test {
    Command() { writeFile(folder / "plate.tfgprt", kPart); }

    /// Runs `orvane` with these arguments in the folder, after the shell's `before`.
    Outcome run(const std::string& arguments, const std::string& before = "true") {
        const TemporaryFolder streams;
        const std::string line = "cd '" + folder.path().string() + "' && " + before + " && '" +
                                 commandPath() + "' " + arguments + " >'" + (streams / "out") + "' 2>'" +
                                 (streams / "err") + "'";
        const int status = std::system(line.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, readFile(streams / "out"),
                readFile(streams / "err")};
    }

    /// Expects a run that fails with one line and leaves no new file.
    void expectRefusal(const std::string& arguments, const std::string& message, int status = 1,
                       const std::string& before = "true") {
        const std::set<std::string> names = folder.names();
        const Outcome outcome = run(arguments, before);
        EXPECT_EQ(outcome.status, status) << arguments;
        EXPECT_EQ(outcome.output, "") << arguments;
        EXPECT_THAT(outcome.errors, StartsWith("orvane: ")) << arguments;
        EXPECT_THAT(outcome.errors, HasSubstr(message)) << arguments;
        EXPECT_EQ(std::ranges::count(outcome.errors, '\n'), 1) << outcome.errors;
        EXPECT_EQ(folder.names(), names) << arguments;
    }

    TemporaryFolder folder;
};

TEST_F(Command, PrintsThePathOfWhatItWrote) {
    EXPECT_EQ(run("export plate.tfgprt").output, "plate.glb\n");
    EXPECT_EQ(run("export plate.tfgprt -o new/folders/my plate.GLB").status, 2) << "an unquoted blank";
    EXPECT_EQ(run("export plate.tfgprt -o 'new/folders/my plate.GLB'").output, "new/folders/my_plate.glb\n");
    EXPECT_EQ(run("export ./plate.tfgprt -o text.GLTF").output, "text/text.gltf\n");
    const Outcome absolute = run("export plate.tfgprt -o '" + (folder / "a.glb") + "'");
    EXPECT_EQ(absolute.output, (folder / "a.glb") + "\n");
    EXPECT_EQ(absolute.errors, "");
    EXPECT_EQ(readFile(folder / "a.glb"), readFile(folder / "plate.glb"));
    const Outcome quiet = run("export plate.tfgprt -o b.glb --quiet --thumbnails");
    EXPECT_EQ(quiet.status, 0);
    EXPECT_EQ(quiet.output + quiet.errors, "");
}

TEST_F(Command, ReplacesAResultOnlyWhenItIsForced) {
    writeFile(folder / "plate.glb", "mine");
    expectRefusal("export plate.tfgprt", "plate.glb exists already; replace it with --force");
    expectRefusal("export plate.tfgprt -o ./plate.glb", "plate.glb exists already");
    EXPECT_EQ(readFile(folder / "plate.glb"), "mine");
    EXPECT_EQ(run("export plate.tfgprt --force").status, 0);
    EXPECT_THAT(readFile(folder / "plate.glb"), StartsWith("glTF"));
    std::filesystem::create_directory(folder / "taken.glb");
    expectRefusal("export plate.tfgprt -o taken.glb --force", "taken.glb is a folder");
}

TEST_F(Command, TellsWrongUsageApart) {
    expectRefusal("", "command", 2);
    expectRefusal("draw", "draw", 2);
    expectRefusal("export", "MODEL is required", 2);
    expectRefusal("export plate.tfgprt -o scene.obj",
                  "OUT has to end in a file name with .glb or .gltf, found 'scene.obj'", 2);
    expectRefusal("export plate.tfgprt -o out/", "OUT has to end in a file name", 2);
    expectRefusal("export plate.tfgprt --colour", "--colour", 2);
    expectRefusal("export plate.tfgprt --deflection -1", "METRES has to be a number above 0, found '-1'", 2);
    EXPECT_EQ(run("--help").status, 0);
    EXPECT_THAT(run("--version").output, ContainsRegex("^orvane [0-9.]+\n$"));
    EXPECT_THAT(run("export --help").output, HasSubstr("--no-primitive-limit"));
}

TEST_F(Command, TakesTheOptionsForViewsCamerasAndLights) {
    writeFile(folder / "seen.tfgprt", R"({"lights": [{"name": "L", "type": "point"}], "features":
        [{"name": "Cameras", "features": [{"name": "Left", "camera": {}}]}]})");
    const auto nodes = [&](const std::string& option) {
        const Outcome outcome = run("export seen.tfgprt --force -o seen.gltf " + option);
        EXPECT_EQ(outcome.errors, "");
        std::string names;
        const auto gltf = nlohmann::json::parse(readFile(folder / "seen/seen.gltf"));
        for (const auto& node : gltf["nodes"]) {
            names += node["name"].get<std::string>() + " ";
        }
        return names;
    };
    EXPECT_EQ(nodes("--views"), "current seen.tfgprt ");
    EXPECT_EQ(nodes("--cameras"), "Left seen.tfgprt ");
    EXPECT_EQ(nodes("--lights"), "seen.tfgprt LightNode_L ");
}

TEST_F(Command, SaysWhichOptionsChangeNothingYet) {
    const Outcome outcome = run("export plate.tfgprt --thumbnails");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "orvane: warning: --thumbnails has no effect in this version\n");
}

TEST_F(Command, WarnsOfPicturesAndGoesOn) {
    writeFile(folder / "painted.tfgprt",
              R"({"bodies": [{"faces": [{"positions": [0, 0, 0, 1, 0, 0, 0, 1, 0]}]}],
        "appearances": [{"file": "old oak.tfm", "bumpTexture": "huge.bmp", "appliedTo": ["document"]}]})");
    writeFile(folder / "huge.bmp", bmpPicture(60'000, 60'000, 9));
    const Outcome outcome = run("export painted.tfgprt --host-folder library");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "painted.glb\n");
    const std::string here = std::filesystem::canonical(folder.path()).string();
    EXPECT_EQ(outcome.errors,
              "orvane: warning: the host folder library is not there\n"
              "orvane: warning: the appearance file " +
                  here +
                  "/old oak.tfm cannot be read\n"
                  "orvane: warning: the picture " +
                  here +
                  "/library/data/Images/textures/organic/wood/oak/polished oak.jpg is not there\n"
                  "orvane: warning: the picture " +
                  here + "/huge.bmp cannot be read as a picture; it is passed on as it is\n");
    EXPECT_EQ(run("export painted.tfgprt --force --quiet").errors, "");
}

TEST_F(Command, TakesPicturesFromTheHostFolder) {
    writeFile(folder / "painted.tfgprt",
              R"({"bodies": [{"faces": [{"positions": [0, 0, 0, 1, 0, 0, 0, 1, 0]}]}],
        "appearances": [{"file": "oak.tfm", "appliedTo": ["document"]}]})");
    writeFile(folder / "oak.tfm", "");
    const std::string wood = "data/Images/textures/organic/wood/oak";
    std::filesystem::create_directories(folder.path() / "mine" / wood);
    writeFile(folder / ("mine/" + wood + "/polished oak.jpg"), jpegPicture("mine"));
    const Outcome outcome = run("export painted.tfgprt -o own.gltf --host-folder mine/");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(readFile(folder / "own/polished oak.jpg"), jpegPicture("mine"));
    EXPECT_EQ(run("export painted.tfgprt -o sample.gltf").errors, "");
    EXPECT_THAT(folder.names("sample"), testing::Contains("polished oak.jpg")) << "from the sample library";
}

TEST_F(Command, RefusesModelsThatItCannotRead) {
    writeFile(folder / "empty.tfgprt", "");
    writeFile(folder / "cut.tfgprt", std::string(kPart).substr(0, 40));
    writeFile(folder / "binary.tfgprt", std::string("\x7F\x45LF\0\1\2", 7));
    writeFile(folder / "deep.tfgprt", std::string(100'000, '['));
    writeFile(folder / "plain.txt", "");
    expectRefusal("export missing.tfgprt", "missing.tfgprt");
    expectRefusal("export empty.tfgprt", "empty.tfgprt");
    expectRefusal("export cut.tfgprt", "cut.tfgprt");
    expectRefusal("export binary.tfgprt", "binary.tfgprt");
    expectRefusal("export deep.tfgprt", "deep.tfgprt");
    expectRefusal("export plain.txt", "expected .tfgprt, .tfgasm, .step or .stp");
    expectRefusal("export .", "expected");
    expectRefusal("export missing.tfgprt -o new/folder/x.glb", "missing.tfgprt");
}

TEST_F(Command, RefusesTargetsThatCannotBeWritten) {
    writeFile(folder / "file", "");
    expectRefusal("export plate.tfgprt -o file/x.glb", "cannot be made");
    expectRefusal("export plate.tfgprt -o new/" + std::string(300, 'n') + ".gltf",
                  "is longer than 255 bytes");
    expectRefusal("export plate.tfgprt -o /proc/x.glb", "cannot be created");
    expectRefusal("export plate.tfgprt -o /proc/new/x.gltf", "cannot be made");
}

/// A small file system of its own, mounted in the folder. Mounting needs the rights of root.
struct SmallDisk {
    explicit SmallDisk(const std::string& path) : path_(path) {
        std::filesystem::create_directory(path);
        isMounted = mount("tmpfs", path.c_str(), "tmpfs", 0, "size=64k") == 0;
    }
    ~SmallDisk() {
        if (isMounted) {
            umount(path_.c_str());
        }
    }

    bool isMounted;

private:
    std::string path_;
};

TEST_F(Command, LeavesNothingOnAFullDisk) {
    std::string positions = "0";
    for (int i = 1; i < 9 * 5000; ++i) {
        positions += "," + std::to_string(i % 7);
    }
    writeFile(folder / "big.tfgprt", R"({"bodies": [{"faces": [{"positions": [)" + positions + "]}]}]}");
    // The limit of a file's size fails in the same calls as a full disk does, and needs no rights.
    expectRefusal("export big.tfgprt -o x.glb", "x.glb cannot be written: File too large", 1, "ulimit -f 64");
    expectRefusal("export big.tfgprt -o x.gltf", "cannot be written: File too large", 1, "ulimit -f 64");

    const SmallDisk disk(folder / "disk");
    if (disk.isMounted) {
        writeFile(folder / "disk/x.glb", "before");
        expectRefusal("export big.tfgprt -o disk/x.glb --force", "No space left on device");
        expectRefusal("export big.tfgprt -o disk/y.gltf", "No space left on device");
        EXPECT_EQ(folder.names("disk"), std::set<std::string>{"x.glb"});
        EXPECT_EQ(readFile(folder / "disk/x.glb"), "before");
    }
}

} // namespace
} // namespace orvane
