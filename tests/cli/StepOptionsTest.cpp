// How the command's options change what becomes of a STEP file.

#include "cli/CommandFixture.h"

namespace orvane {
namespace {

TEST_F(Command, MakesTrianglesAsFineAsItsOptionsSay) {
    const std::string block = sourceFolder() + "/examples/step/pulley_block.step";
    const auto result = [&](const std::string& options) {
        EXPECT_EQ(run("export '" + block + "' --force -o x.glb " + options).errors, "");
        return readFile(folder / "x.glb");
    };
    const std::string usual = result("");
    EXPECT_TRUE(result("--jobs 1 --deflection 0.1% --angle 20") == usual) << "these are the defaults";
    EXPECT_TRUE(result("--jobs 3") == usual) << "the number of processes changes nothing";
    EXPECT_LT(result("--angle 45").size(), usual.size());
    const std::string coarse = result("--deflection '5 mm'");
    EXPECT_LT(coarse.size(), usual.size());
    EXPECT_TRUE(result("--deflection 0.005") == coarse);
    EXPECT_FALSE(result("--deflection 5%") == coarse);
}

} // namespace
} // namespace orvane
