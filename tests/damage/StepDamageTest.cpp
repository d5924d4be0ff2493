// Exports damaged STEP files: whatever is in them, the command tells it in one line or writes a whole result,
// and leaves nothing behind.

#include "damage/DamageSources.h"
#include "damage/StepMutations.h"
#include "damage/WatchedRun.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstring>
#include <sstream>

namespace orvane::step_damage {
namespace {

// All kinds together are 1,012 files; in builds that are slow, a part of them tells enough.
#ifdef NDEBUG
constexpr int kFilesOfAKind = 46;
#else
constexpr int kFilesOfAKind = 4;
#endif
constexpr double kMostMemory = 2e9;
// The last of the models is ten times as large as the others.
constexpr std::array<std::size_t, 10> kTurns = {0, 1, 2, 0, 1, 2, 0, 1, 0, 3};

struct StepDamage : testing::TestWithParam<int> {
    /// Writes the model with one of its files damaged, and exports it.
    WatchedOutcome exportDamaged(const TemporaryFolder& disk, const SourceModel& model, std::uint64_t seed,
                                 std::string& story) {
        std::filesystem::create_directory(disk / "model");
        std::filesystem::create_directory(disk / "result");
        const std::size_t damaged = seed / kTurns.size() % model.files.size();
        for (std::size_t i = 0; i < model.files.size(); ++i) {
            const auto& [name, bytes] = model.files[i];
            if (i == damaged) {
                const MutatedFile file = mutated(bytes, GetParam(), seed);
                story = name + ": " + file.story;
                writeFile(disk / ("model/" + name), file.bytes);
            } else {
                writeFile(disk / ("model/" + name), bytes);
            }
        }
        WatchedRun run(
            {"orvane", "export", disk / ("model/" + model.files.front().name), "-o", disk / "result/x.glb"},
            disk.path());
        return run.finish();
    }
};

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

/// JSON has no word for a number that is not finite, so such a number shows as well.
void expectWholeGlb(const std::string& glb) {
    ASSERT_GE(glb.size(), 20U);
    const auto number = [&](std::size_t at) {
        std::uint32_t value = 0;
        std::memcpy(&value, glb.data() + at, sizeof value);
        return value;
    };
    EXPECT_EQ(glb.substr(0, 4), "glTF");
    EXPECT_EQ(number(8), glb.size());
    EXPECT_TRUE(nlohmann::json::accept(glb.substr(20, number(12))));
}

void expectToldOrWritten(const WatchedOutcome& outcome, const TemporaryFolder& disk) {
    using testing::Each;
    using testing::ElementsAre;
    using testing::StartsWith;
    const std::vector<std::string> lines = linesOf(outcome.errors);
    if (outcome.status == 0) {
        EXPECT_THAT(lines, Each(StartsWith("orvane: warning: ")));
        EXPECT_THAT(disk.names("result"), ElementsAre("x.glb"));
        expectWholeGlb(readFile(disk / "result/x.glb"));
    } else {
        EXPECT_EQ(outcome.status, 1);
        EXPECT_THAT(lines, ElementsAre(testing::AllOf(StartsWith("orvane: "),
                                                      testing::Not(StartsWith("orvane: warning: ")))));
        EXPECT_THAT(disk.names("result"), testing::IsEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(, StepDamage, testing::Range(0, mutationKinds()), [](const auto& kind) {
    std::string name = mutationName(kind.param);
    std::ranges::replace(name, ' ', '_');
    return name;
});

std::string statementsOf(const std::vector<SourceModel>& models) {
    std::string text;
    for (const SourceModel& model : models) {
        for (const SourceModel::File& file : model.files) {
            text += file.bytes.substr(file.bytes.find("DATA;"));
        }
    }
    return text;
}

// Without that, a run could not be repeated, or a kind could give way to another one unseen.
TEST(StepMutations, AreOfTheirKindAndTheSameEachTime) {
    const std::vector<SourceModel> models = makeSourceModels();
    EXPECT_EQ(statementsOf(models), statementsOf(makeSourceModels()));
    const std::string& file = models.front().files.front().bytes;
    for (int kind = 0; kind < mutationKinds(); ++kind) {
        for (std::uint64_t seed = 0; seed < 20; ++seed) {
            const MutatedFile damaged = mutated(file, kind, seed);
            EXPECT_EQ(damaged.bytes, mutated(file, kind, seed).bytes);
            EXPECT_THAT(damaged.story, testing::StartsWith(mutationName(kind)));
        }
    }
}

TEST_P(StepDamage, IsToldInOneLineOrMendedAndNothingIsLeft) {
    const std::vector<SourceModel> models = makeSourceModels();
    for (int i = 0; i < kFilesOfAKind && !HasFailure(); ++i) {
        const auto seed = static_cast<std::uint64_t>(1000 * GetParam() + i);
        const SourceModel& model = models.at(kTurns.at(seed % kTurns.size()));
        const TemporaryFolder disk;
        std::string story;
        const WatchedOutcome outcome = exportDamaged(disk, model, seed, story);
        SCOPED_TRACE("seed " + std::to_string(seed) + ", " + story + "\n" + outcome.errors);
        EXPECT_EQ(outcome.signal, 0);
        EXPECT_EQ(outcome.leftProcesses, 0);
        EXPECT_LT(outcome.largestProcess, kMostMemory);
        EXPECT_THAT(disk.names("tmp"), testing::IsEmpty());
        EXPECT_EQ(disk.names("model").size(), model.files.size());
        if (outcome.signal == 0) {
            expectToldOrWritten(outcome, disk);
        }
    }
}

} // namespace
} // namespace orvane::step_damage
