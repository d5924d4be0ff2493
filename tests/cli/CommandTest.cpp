// Runs the built command as a person would.

#include "cli/CommandFixture.h"
#include "support/Pictures.h"

#include <nlohmann/json.hpp>

#include <map>
#include <set>
#include <string>
#include <sys/stat.h>

namespace orvane {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

TEST_F(Command, PrintsThePathOfWhatItWrote) {
    EXPECT_EQ(run("export plate.tfgprt").output, "plate.glb\n");
    EXPECT_EQ(run("export plate.tfgprt -o 'new/folders/my plate.GLB'").output, "new/folders/my_plate.glb\n");
    EXPECT_EQ(run("export ./plate.tfgprt -o text.GLTF").output, "text/text.gltf\n");
    const std::string absolute = folder / "a.glb";
    EXPECT_EQ(run("export plate.tfgprt -o '" + absolute + "'").output, absolute + "\n");
    EXPECT_EQ(readFile(absolute), readFile(folder / "plate.glb"));
    EXPECT_EQ(run("export plate.tfgprt -o idle.glb --thumbnails").errors,
              "orvane: warning: --thumbnails has no effect in this version\n");
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

TEST_F(Command, LetsTwoExportsIntoOneFolderTakeTurns) {
    const std::string once = "'" + commandPath() + "' export plate.tfgprt --force -o x.gltf";
    EXPECT_EQ(run("export plate.tfgprt --force -o x.gltf", "{ " + once + " & " + once + " & wait; }").status,
              0);
    EXPECT_EQ(folder.names("x"), (std::set<std::string>{"plate.tfgprt.bin", "plate.tfgprt-1.bin",
                                                        "plate.tfgprt-1-2.bin", "x.gltf"}));
}

TEST_F(Command, SaysWhenThePathCannotBeWritten) {
    for (const char* redirection : {" >/dev/full", " >&-", " | false"}) {
        SCOPED_TRACE(redirection);
        const std::string line = "'" + commandPath() + "' export plate.tfgprt --force -o x.glb 2>err";
        EXPECT_EQ(run("export plate.tfgprt -o y.glb --force", "{ " + line + redirection + "; true; }").status,
                  0);
        if (redirection != std::string(" | false")) { // which may end before or after the line is written
            EXPECT_EQ(readFile(folder / "err"),
                      "orvane: warning: the path of the result cannot be written to standard output\n");
        }
        EXPECT_EQ(readFile(folder / "x.glb"), readFile(folder / "y.glb"));
    }
    EXPECT_EQ(
        run("export plate.tfgprt -o z.glb", "exec <&- 3>&2 && { '" + commandPath() +
                                                "' export plate.tfgprt --force -o x.glb >&- 2>&-; true; }")
            .status,
        0);
    EXPECT_EQ(readFile(folder / "x.glb"), readFile(folder / "z.glb"))
        << "no file of ours gets a stream's number";
}

TEST_F(Command, RefusesTargetsThatAreNoFilesAndKeepsPrivateOnesPrivate) {
    EXPECT_EQ(mkfifo((folder / "pipe.glb").c_str(), 0600), 0);
    expectRefusal("export plate.tfgprt -o pipe.glb --force", "pipe.glb is no file");
    run("export plate.tfgprt", "umask 077");
    EXPECT_EQ(run("export plate.tfgprt --force", "umask 022").status, 0);
    EXPECT_EQ(std::filesystem::status(folder / "plate.glb").permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(Command, TellsWrongUsageApart) {
    expectRefusal("", "command", 2);
    expectRefusal("draw", "draw", 2);
    expectRefusal("export", "MODEL is required", 2);
    expectRefusal("export plate.tfgprt -o out/", "OUT has to end in a file name", 2);
    expectRefusal("export plate.tfgprt -o scene.obj",
                  "OUT has to end in a file name with .glb or .gltf, found 'scene.obj'", 2);
    expectRefusal("export plate.tfgprt --colour", "--colour", 2);
    expectRefusal("export plate.tfgprt --deflection 0.1 mm", "not expected: mm", 2);
    expectRefusal("export plate.tfgprt --deflection 0",
                  "or a share of the part's box up to 100% (0.1%), found '0'", 2);
    expectRefusal("export plate.tfgprt --angle 181", "DEGREES has to be a number above 0 and at most 180", 2);
    expectRefusal("export plate.tfgprt --jobs 0", "N has to be a whole number from 1 to 1024, found '0'", 2);
    EXPECT_EQ(run("--help").status, 0);
    EXPECT_THAT(run("--version").output, ContainsRegex("^orvane [0-9.]+\n$"));
    EXPECT_THAT(run("export --help").output, HasSubstr("--no-primitive-limit"));
}

TEST_F(Command, AddsAndLeavesOutWhatItsOptionsSay) {
    writeFile(folder / "all.tfgasm", R"({
        "components": [{"name": "arm", "document": "plate.tfgprt", "state": 1}],
        "lights": [{"name": "L", "type": "point"}],
        "features": [{"name": "Cameras", "features": [{"name": "Left", "camera": {}}]}],
        "motionStudies": [{"name": "Turn", "duration": 1, "tracks": [{"component": "arm", "keys":
            [{"time": 0, "placement": {}}, {"time": 1, "placement": {"translate": [1, 0, 0]}}]}]}],
        "explodedViews": [{"name": "Apart", "steps": [{"components": ["arm"], "translate": [1, 0, 0]}]}]})");
    const auto records = [&](const std::string& option) {
        EXPECT_EQ(run("export all.tfgasm --force -o all.gltf " + option).errors, "");
        const auto gltf = nlohmann::json::parse(readFile(folder / "all/all.gltf"));
        std::string names;
        for (const char* list : {"nodes", "animations"}) {
            for (const auto& record : gltf.value(list, nlohmann::json::array())) {
                names += record["name"].get<std::string>() + (record.contains("mesh") ? ":mesh " : " ");
            }
        }
        return names;
    };
    EXPECT_EQ(records(""), "all arm:mesh ");
    EXPECT_EQ(records("--views"), "current all arm:mesh ");
    EXPECT_EQ(records("--cameras"), "Left all arm:mesh ");
    EXPECT_EQ(records("--lights"), "all arm:mesh LightNode_L ");
    EXPECT_EQ(records("--animations"), "all arm:mesh Turn ");
    EXPECT_EQ(records("--exploded-views"), "all arm:mesh Apart ");
    EXPECT_EQ(records("--no-resolve"), "all arm ");
}

TEST_F(Command, WarnsOfPicturesAndGoesOn) {
    writeFile(folder / "painted.tfgprt", part(R"(, "appearances": [
        {"file": "old oak.tfm", "bumpTexture": "huge.bmp", "appliedTo": ["document"]}])"));
    writeFile(folder / "huge.bmp", bmpPicture(60'000, 60'000, 9));
    const Outcome outcome = run("export painted.tfgprt --host-folder library");
    EXPECT_EQ(outcome.output, "painted.glb\n");
    const std::string here = std::filesystem::canonical(folder.path()).string() + "/";
    const std::string wood = here + "library/data/Images/textures/organic/wood/oak/polished oak.jpg";
    std::string expected;
    for (const std::string& warning :
         {std::string("host folder library is not there"),
          "appearance file " + here + "old oak.tfm cannot be read", "picture " + wood + " is not there",
          "picture " + here + "huge.bmp cannot be read as a picture; it is passed on as it is"}) {
        expected += "orvane: warning: the " + warning + "\n";
    }
    EXPECT_EQ(outcome.errors, expected);
    EXPECT_EQ(run("export painted.tfgprt --force --quiet").errors, "");
}

TEST_F(Command, TakesPicturesFromTheHostFolder) {
    writeFile(folder / "painted.tfgprt",
              part(R"(, "appearances": [{"file": "oak.tfm", "appliedTo": ["document"]}])"));
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

TEST_F(Command, TellsWhatAnExportTook) {
    const Outcome timed = run("export plate.tfgprt --timings");
    EXPECT_EQ(timed.output, "plate.glb\n");
    std::string lines;
    for (const char* what : {"parsing", "transferring", "meshing", "building", "writing", "total"}) {
        lines += "orvane: " + std::string(what) + " +[0-9]+\\.[0-9][0-9] s\n";
    }
    EXPECT_THAT(timed.errors, MatchesRegex(lines + "orvane: peak memory +[1-9][0-9]* MB\n"));
    EXPECT_EQ(run("export plate.tfgprt --timings --force --quiet").errors, "");
    expectRefusal("export plate.tfgprt --timings", "exists already");
    expectRefusal("export missing.tfgprt --timings", "missing.tfgprt");
}

TEST_F(Command, RefusesModelsThatItCannotReadAndTargetsThatItCannotWrite) {
    const std::map<std::string, std::string> models = {{"empty.tfgprt", ""},
                                                       {"cut.tfgprt", part().substr(0, 40)},
                                                       {"binary.tfgprt", {"\x7F\x45LF\0\1\2", 7}},
                                                       {"deep.tfgprt", std::string(100'000, '[')}};
    for (const auto& [name, content] : models) {
        writeFile(folder / name, content);
        expectRefusal("export " + name, name);
    }
    writeFile(folder / "file", "");
    expectRefusal("export file", "expected .tfgprt, .tfgasm, .step or .stp");
    expectRefusal("export .", "expected");
    expectRefusal("export missing.tfgprt -o new/folder/x.glb", "missing.tfgprt");
    expectRefusal("export plate.tfgprt -o file/x.glb", "cannot be made");
    expectRefusal("export plate.tfgprt -o new/" + std::string(300, 'n') + ".gltf",
                  "is longer than 255 bytes");
    expectRefusal("export plate.tfgprt -o /proc/x.glb", "cannot be created");
    expectRefusal("export plate.tfgprt -o /proc/new/x.gltf", "cannot be made");
}

TEST_F(Command, LeavesNothingWhereThereIsNoRoom) {
    std::string positions = "0,0,0,1,0,0,0,1,0";
    for (int doubling = 0; doubling < 13; ++doubling) {
        positions += "," + positions;
    }
    writeFile(folder / "big.tfgprt", R"({"bodies": [{"faces": [{"positions": [)" + positions + "]}]}]}");
    writeFile(folder / "x.glb", "before");
    // The limit of a file's size fails in the same calls as a full disk does, and needs no rights.
    expectRefusal("export big.tfgprt -o x.glb --force", "x.glb cannot be written: File too large", 1,
                  "ulimit -f 64");
    EXPECT_EQ(readFile(folder / "x.glb"), "before");
    expectRefusal("export big.tfgprt -o x.gltf", "cannot be written: File too large", 1, "ulimit -f 64");
}

} // namespace
} // namespace orvane
