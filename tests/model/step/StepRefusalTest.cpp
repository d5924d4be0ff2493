#include "support/StepFacts.h"
#include "support/StepMaker.h"

#include <gmock/gmock.h>

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
        {"ISO-10303-21;\nEND-ISO-10303-21;\n", "expected"},
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
    const std::size_t usage = text.find(",'It','',#");
    ASSERT_NE(usage, std::string::npos);
    const std::size_t parent = text.find('#', usage);
    const std::size_t comma = text.find(',', parent);
    const std::string own = text.substr(parent, comma - parent);
    std::string cycle = text;
    cycle.replace(comma + 1, text.find(',', comma + 1) - comma - 1, own);
    EXPECT_THAT(refusalOf(cycle), HasSubstr(own + " holds itself"));

    const std::size_t surface = text.find("= PLANE(");
    const std::size_t line = text.rfind('\n', surface) + 1;
    const std::string number = text.substr(line, text.find(' ', line) - line);
    std::string looped = text;
    looped.replace(surface, text.find(';', surface) - surface, "= OFFSET_SURFACE(''," + number + ",1.,.F.)");
    EXPECT_THAT(refusalOf(looped), HasSubstr(number + " holds itself"));
}

TEST_F(StepRefusal, CountsComponentsWithoutExpandingThem) {
    // 21 levels, each of them two of the next.
    std::string text = readFile(saveShape(folder / "box.step", box(1, 1, 1)));
    std::string levels;
    for (int level = 0; level <= 21; ++level) {
        const std::string number = std::to_string(90000 + level);
        levels += "#" + number + "=PRODUCT_DEFINITION('','',#6,#9);\n";
        for (int usage = 1; usage <= 2 && level > 0; ++usage) {
            levels += "#" + std::to_string(90000 + 100 * usage + level) +
                      "=NEXT_ASSEMBLY_USAGE_OCCURRENCE('','','',#" + number + ",#" +
                      std::to_string(90000 + level - 1) + ",$);\n";
        }
    }
    text.insert(text.rfind("ENDSEC;"), levels);
    EXPECT_THAT(refusalOf(text), HasSubstr(" has more than 2000000 components"));
}

} // namespace
} // namespace orvane::step
