#include "support/StepFacts.h"
#include "support/StepMaker.h"

#include <gmock/gmock.h>
#include <regex>

namespace orvane::step {
namespace {

using namespace step_facts;
using namespace step_maker;
using testing::HasSubstr;

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

struct StepRefusal : StepTest {
    std::string refusalOf(const std::string& bytes) const { return errorOfReading(write("bad.step", bytes)); }
};

TEST_F(StepRefusal, RefusesWhatIsNoReadableStepFile) {
    const std::string good = readFile(saveShape(folder / "good.step", box(1, 1, 1)));
    const std::pair<std::string, const char*> kFiles[] = {
        {"", "found an empty file, expected a STEP file, which begins with 'ISO-10303-21;'"},
        {std::string("PK\3\4\0\0", 6), "found 'PK....', expected"},
        {good.substr(0, good.size() / 2), "the file is cut off"},
        {"ISO-10303-21;\nHEADER;\nENDSEC;\nDATA;\nENDSEC;\nEND-ISO-10303-21;\n", "expected"},
        {"ISO-10303-21;\n" + std::string(200000, '(') + "\nEND-ISO-10303-21;\n", "expected"},
    };
    for (const auto& [bytes, message] : kFiles) {
        const std::string error = refusalOf(bytes);
        EXPECT_THAT(error, testing::AllOf(HasSubstr("bad.step: "), HasSubstr(message)));
        EXPECT_EQ(error.find('\n'), std::string::npos);
    }
    EXPECT_THAT(errorOfReading(folder / "none.step"), HasSubstr("found no file"));
    EXPECT_THAT(errorOfReading(folder.path()), HasSubstr("found no file"));
}

TEST_F(StepRefusal, RefusesDamageOnlyWhereSomethingShownNeedsIt) {
    const std::string good = readFile(saveShape(folder / "good.step", box(1, 1, 1)));
    EXPECT_THAT(refusalOf(replaced(good, "= PLANE('',#", "= PLANE('',$,#")),
                HasSubstr("expected whole statements"));
    EXPECT_THAT(refusalOf(replaced(good, "CARTESIAN_POINT('',(0.,", "CARTESIAN_POINT('',(1.E300,")),
                HasSubstr("farther away"));
    const Model model =
        read(write("person.step", replaced(good, "DATA;", "DATA;\n#90000=PERSON(#90001,1.5);")));
    EXPECT_EQ(model.documents.front()->bodies.size(), 1u);
    EXPECT_THAT(model.warnings, testing::Contains(HasSubstr("person.step: #90000 ")));
}

TEST_F(StepRefusal, SurvivesProductsAndShapesThatHoldThemselves) {
    maker.place(root, maker.part(u"Box", box(1, 1, 1)), u"It", moved(1));
    const std::string text = readFile(maker.save(folder / "cycle.step"));
    std::smatch usage; // its parent and its child
    ASSERT_TRUE(std::regex_search(text, usage, std::regex(",'It','',(#\\d+),(#\\d+)")));
    const std::string parent = usage[1];
    EXPECT_THAT(refusalOf(replaced(text, usage[0], ",'It',''," + parent + "," + parent)),
                HasSubstr(parent + " holds itself"));

    std::smatch plane;
    ASSERT_TRUE(std::regex_search(text, plane, std::regex("(#\\d+) = PLANE\\([^;]*;")));
    const std::string own = plane[1];
    EXPECT_THAT(refusalOf(replaced(text, plane[0], own + " = OFFSET_SURFACE(''," + own + ",1.,.F.);")),
                HasSubstr(own + " holds itself"));
}

TEST_F(StepRefusal, CountsComponentsWithoutExpandingThem) {
    // 21 levels, each of them two of the next.
    std::string text = readFile(saveShape(folder / "box.step", box(1, 1, 1)));
    std::string levels;
    for (int level = 90000; level <= 90021; ++level) {
        levels += "#" + std::to_string(level) + "=PRODUCT_DEFINITION('','',#6,#9);\n";
        for (const int usage : {level + 100, level + 200}) {
            levels += "#" + std::to_string(usage) + "=NEXT_ASSEMBLY_USAGE_OCCURRENCE('','','',#" +
                      std::to_string(level + 1) + ",#" + std::to_string(level) + ",$);\n";
        }
    }
    levels += "#90022=PRODUCT_DEFINITION('','',#6,#9);\n";
    text.insert(text.rfind("ENDSEC;"), levels);
    EXPECT_THAT(refusalOf(text), HasSubstr(" has more than 2000000 components"));
}

} // namespace
} // namespace orvane::step
