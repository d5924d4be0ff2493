// Walks through an export call by call and lets each call on files fail, or ends the command there: nothing
// of the user's may be lost then, and nothing without a word.

#include "faults/FaultyRun.h"

#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <csignal>
#include <functional>
#include <map>
#include <set>
#include <sstream>
#include <sys/stat.h>

namespace orvane {
namespace {

using platform::FileFault;

// In builds that are slow, a part of the calls tells enough.
#ifdef NDEBUG
constexpr int kStride = 1;
#else
constexpr int kStride = 7;
#endif

std::string part(double size, const std::string& appearances) {
    return R"({"bodies": [{"shape": {"box": {"size": [)" + std::to_string(size) +
           R"(, 0.1, 0.1]}}}], "appearances": [)" + appearances + "]}";
}

/// An assembly with everything that an export makes files of: two parts of one name, a picture to copy and
/// one to convert, an appearance file, a study, an exploded view. Two states of it differ in every file.
void writeModel(const TemporaryFolder& folder, int state) {
    std::filesystem::create_directories(folder / "a");
    std::filesystem::create_directories(folder / "b");
    writeFile(
        folder / "a/bolt.tfgprt",
        part(state, R"({"file": "../finish.tfm", "texture": "../grain.bmp", "appliedTo": ["document"]})"));
    writeFile(folder / "b/bolt.tfgprt",
              part(state + 0.5, R"({"texture": "../label.png", "appliedTo": ["document"]})"));
    writeFile(folder / "finish.tfm",
              "\"tf_shader\" polishedsteel\n\"col1\" 0." + std::to_string(state) + ",0.4,0.5\n");
    writeFile(folder / "grain.bmp", smallBmp(static_cast<char>(32 * state)));
    writeFile(folder / "label.png", pngPicture(std::to_string(state)));
    const std::string moved = "\"translate\": [0, " + std::to_string(state) + ", 0]";
    writeFile(folder / "rack.tfgasm", R"({"components": [
        {"name": "left", "components": [{"name": "bolt", "document": "a/bolt.tfgprt"}]},
        {"name": "right", "components": [{"name": "bolt", "document": "b/bolt.tfgprt"}]}],
        "motionStudies": [{"name": "Turn", "duration": 1, "frameRate": 2, "tracks": [{"component": "left/bolt",
            "keys": [{"time": 0}, {"time": 1, "placement": {)" +
                                          moved + R"(}}]}]}],
        "explodedViews": [{"name": "Apart", "frameRate": 2, "steps": [{"components": ["right/bolt"], )" +
                                          moved + "}]}]}");
}

/// Everything below a folder: the bytes and the access rights of its files.
using Tree = std::map<std::string, std::string>;

Tree treeOf(const std::string& folder) {
    Tree tree;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        struct stat status {};
        lstat(entry.path().c_str(), &status);
        tree[entry.path().lexically_relative(folder)] =
            std::to_string(status.st_mode) + " " + (entry.is_regular_file() ? readFile(entry.path()) : "");
    }
    return tree;
}

/// Where an export goes: what is there before, and whether it may give way.
struct Place {
    const char* name;
    const char* target;
    bool hasEarlier; ///< a result of another state of the model, for its owner alone
};

void PrintTo(const Place& place, std::ostream* out) {
    *out << place.name;
}

struct FaultWalk : testing::TestWithParam<Place> {
    FaultWalk() {
        writeModel(model, 1);
        std::filesystem::create_directory(before_);
        if (GetParam().hasEarlier) {
            const TemporaryFolder other;
            writeModel(other, 2);
            EXPECT_EQ(runFaulty(arguments(other / "rack.tfgasm", before_), {}).status, 0);
            for (const auto& entry : std::filesystem::recursive_directory_iterator(before_)) {
                if (entry.is_regular_file()) {
                    std::filesystem::permissions(entry, std::filesystem::perms::owner_read |
                                                            std::filesystem::perms::owner_write);
                }
            }
        }
        // A file of the user's that an export without faults leaves alone.
        std::filesystem::create_directories(before_ + "/x");
        writeFile(before_ + "/x/notes.txt", "notes");
        startTree = treeOf(before_);
        clean = run({});
        EXPECT_EQ(clean.status, 0) << clean.errors;
        cleanTree = treeOf(out_);
        EXPECT_GT(clean.calls, 30);
    }

    std::vector<std::string> arguments(const std::string& document, const std::string& out) const {
        std::vector<std::string> words{
            "orvane",       "export",          document, "-o", out + "/" + GetParam().target,
            "--animations", "--exploded-views"};
        if (GetParam().hasEarlier) {
            words.push_back("--force");
        }
        return words;
    }

    /// Runs the export onto what was there before.
    FaultyOutcome run(const PlannedFault& fault) {
        std::filesystem::remove_all(out_);
        std::filesystem::copy(before_, out_, std::filesystem::copy_options::recursive);
        return runFaulty(arguments(model / "rack.tfgasm", out_), fault);
    }

    /// A result, as it is without faults, or one of which a person was told more; or none, and all is as
    /// before.
    void expectWholeOrTold(const FaultyOutcome& outcome) {
        const Tree tree = treeOf(out_);
        EXPECT_EQ(outcome.signal, 0) << "a crash";
        EXPECT_FALSE(outcome.leaksFiles);
        if (outcome.status == 0) {
            EXPECT_TRUE(tree == cleanTree || !std::ranges::includes(warnings(clean), warnings(outcome)))
                << outcome.errors;
            for (const auto& [name, content] : startTree) {
                EXPECT_TRUE(tree.contains(name)) << name;
            }
            EXPECT_EQ(tree.at("x/notes.txt"), startTree.at("x/notes.txt"));
        } else {
            EXPECT_EQ(outcome.status, 1);
            EXPECT_THAT(outcome.errors, testing::ContainsRegex("(^|\n)orvane: [^w]"));
            EXPECT_TRUE(tree == startTree) << outcome.errors;
        }
    }

    static std::set<std::string> warnings(const FaultyOutcome& outcome) {
        std::set<std::string> lines;
        std::istringstream errors(outcome.errors);
        for (std::string line; std::getline(errors, line);) {
            lines.insert(line);
        }
        return lines;
    }

    /// Each file of before is as it was, or as it is to be; all others are whole files of the result.
    void expectNoHalfFile() {
        const Tree tree = treeOf(out_);
        for (const auto& [name, content] : tree) {
            const bool isOld = startTree.contains(name) && startTree.at(name) == content;
            const bool isNew = cleanTree.contains(name) && cleanTree.at(name) == content;
            // Where a file is replaced, either of both may be found under a name of its own.
            const bool isMoving = GetParam().hasEarlier && name.find(".orvane-") != std::string::npos;
            EXPECT_TRUE(isOld || isNew || isMoving) << name;
        }
        for (const auto& [name, content] : startTree) {
            EXPECT_TRUE(tree.contains(name)) << name;
        }
    }

    void walk(PlannedFault fault, const std::function<void(const FaultyOutcome&)>& expect) {
        for (fault.call = 1; fault.call <= clean.calls; fault.call += kStride) {
            SCOPED_TRACE("call " + std::to_string(fault.call) + " of " + std::to_string(clean.calls));
            expect(run(fault));
            if (HasFailure()) {
                break;
            }
        }
    }

    TemporaryFolder model;
    TemporaryFolder disk;
    std::string before_ = disk / "before";
    std::string out_ = disk / "out";
    Tree startTree;
    FaultyOutcome clean;
    Tree cleanTree;
};

INSTANTIATE_TEST_SUITE_P(, FaultWalk,
                         testing::Values(Place{"binary", "x.glb", false}, Place{"text", "x.gltf", false},
                                         Place{"binaryOverAnother", "x.glb", true},
                                         Place{"textOverAnother", "x.gltf", true}),
                         [](const auto& place) { return place.param.name; });

TEST_P(FaultWalk, KeepsEverythingWhenACallFails) {
    EXPECT_NE(cleanTree, startTree);
    for (const FileFault fault : {FileFault::failed, FileFault::full}) {
        for (const bool isForGood : {false, true}) {
            SCOPED_TRACE(fault == FileFault::full ? "full" : "failed");
            SCOPED_TRACE(isForGood ? "for good" : "once");
            walk({.fault = fault, .isForGood = isForGood},
                 [this](const FaultyOutcome& outcome) { expectWholeOrTold(outcome); });
        }
    }
}

TEST_P(FaultWalk, GoesOnWhereACallIsInterruptedOrDoesHalf) {
    for (const FileFault fault : {FileFault::interrupted, FileFault::cutShort}) {
        walk({.fault = fault}, [this](const FaultyOutcome& outcome) {
            EXPECT_EQ(outcome.errors, clean.errors);
            EXPECT_TRUE(treeOf(out_) == cleanTree);
        });
    }
    walk({.fault = FileFault::interrupted, .isForGood = true},
         [this](const FaultyOutcome& outcome) { expectWholeOrTold(outcome); });
}

TEST_P(FaultWalk, ClearsUpBeforeItEndsByASignal) {
    for (const int signal : {SIGINT, SIGTERM}) {
        walk({.signal = signal}, [&](const FaultyOutcome& outcome) {
            EXPECT_EQ(outcome.signal, signal);
            const Tree tree = treeOf(out_);
            EXPECT_TRUE(tree == startTree || tree == cleanTree);
        });
    }
}

TEST_P(FaultWalk, LeavesNoHalfFileWhenItIsKilled) {
    walk({.signal = SIGKILL}, [&](const FaultyOutcome& outcome) {
        EXPECT_EQ(outcome.signal, SIGKILL);
        expectNoHalfFile();
    });
}

TEST_P(FaultWalk, KeepsEverythingWhenMemoryIsRefused) {
    // All of them would take minutes; a stride that is prime meets every step of the work.
    constexpr int kMemoryStride = 53 * kStride;
    bool wasRefused = true;
    for (int refused = 0; wasRefused && !HasFailure(); refused += kMemoryStride) {
        SCOPED_TRACE("request for memory " + std::to_string(refused));
        const FaultyOutcome outcome = run({.refusedMemory = refused});
        expectWholeOrTold(outcome);
        wasRefused = outcome.wasRefused;
    }
}

} // namespace
} // namespace orvane
