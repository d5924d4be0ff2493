#pragma once

#include "support/Paths.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <string>
#include <sys/wait.h>

namespace orvane {

/// A part of one triangle, with more keys of its document.
inline std::string part(const std::string& keys = "") {
    return R"({"bodies": [{"faces": [{"positions": [0, 0, 0, 1, 0, 0, 0, 1, 0]}]}])" + keys + "}";
}

/// What a run of the command left behind.
struct Outcome {
    int status = -1;
    std::string output;
    std::string errors;
};

struct Command : testing::Test {
    Command() { writeFile(folder / "plate.tfgprt", part()); }

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
        SCOPED_TRACE(arguments);
        const std::set<std::string> names = folder.names();
        const Outcome outcome = run(arguments, before);
        EXPECT_EQ(outcome.status, status);
        EXPECT_EQ(outcome.output, "");
        EXPECT_THAT(outcome.errors,
                    testing::AllOf(testing::StartsWith("orvane: "), testing::HasSubstr(message)));
        EXPECT_EQ(std::ranges::count(outcome.errors, '\n'), 1) << outcome.errors;
        EXPECT_EQ(folder.names(), names);
    }

    TemporaryFolder folder;
};

} // namespace orvane
