// Whether the reasons that are told are those for which a strict reader refuses the text.

#include "document/StrictJson.h"

#include "document/DocumentWriter.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <functional>
#include <limits>
#include <string>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

using Change = std::function<void(GltfDocument&)>;
using Placing = std::function<void(GltfDocument&, const std::string&)>;

/// A document with one record of each kind, which strict readers take.
void fill(GltfDocument& document) {
    document.scenes.push_back({.name = "s", .displayStates = {"d"}, .animations = {0}});
    document.scenes[0].customProperties = {{"n", "v", 30}};
    addRecord(document.animations).name = "a";
    addRecord(document.animations).name = "of no scene";
    addRecord(document.nodes).component = &document;
    document.nodes[0]->matrix = {1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0};
    document.nodes[0]->comments = {{"n", "t"}};
    document.displayStatesByComponent[&document] = {{"d", {}}};
    addRecord(document.cameras).isPerspective = 1;
    addRecord(document.lights).type = LightType::point;
    document.generalTables = {{"t", {"h"}, {{"c", "beyond the headers"}}}};
    document.designTable = {"t", {"h"}, {{"c", "d"}, {"e", "f", "beyond the first row"}}};
    registerMaterial(document, makeMaterial(document));
    makeMaterial(document).mname = "not written";
    for (int i = 0; i < 2; ++i) {
        GltfTexture& texture = addRecord(document.textures);
        texture.source = addRecord(document.images).index;
        texture.sampler = addRecord(document.samplers).index;
    }
    document.images[1]->bufferView = 0;
    addRecord(document.accessors).bounds = AccessorBounds{};
    addRecord(document.bufferViews);
    addRecord(document.buffers).uri = "b.bin";
}

/// The reasons for a document; expects them where its text is refused, and nowhere else.
std::vector<std::string> reasonsFor(const Change& change) {
    GltfDocument document;
    fill(document);
    change(document);
    TextStream out;
    writeDocumentHead(out, 0);
    writeDocument(out, document, document.progress);
    std::vector<std::string> reasons = reasonsOfStrictReaders(document);
    EXPECT_EQ(nlohmann::json::accept(out.text() + "}\n"), reasons.empty()) << testing::PrintToString(reasons);
    return reasons;
}

const std::map<std::string, Placing> kWritten = {
    {"scene", [](GltfDocument& d, const std::string& text) { d.scenes[0].name = text; }},
    {"display state", [](GltfDocument& d, const std::string& text) { d.scenes[0].displayStates[0] = text; }},
    {"name of a property",
     [](GltfDocument& d, const std::string& text) { d.scenes[0].customProperties[0].name = text; }},
    {"value of a property",
     [](GltfDocument& d, const std::string& text) { d.scenes[0].customProperties[0].value = text; }},
    {"node", [](GltfDocument& d, const std::string& text) { d.nodes[0]->name = text; }},
    {"name of a comment",
     [](GltfDocument& d, const std::string& text) { d.nodes[0]->comments[0].name = text; }},
    {"text of a comment",
     [](GltfDocument& d, const std::string& text) { d.nodes[0]->comments[0].text = text; }},
    {"a display state",
     [](GltfDocument& d, const std::string& text) {
         d.displayStatesByComponent[&d] = {{text, {}}};
     }},
    {"title", [](GltfDocument& d, const std::string& text) { d.generalTables[0].title = text; }},
    {"header", [](GltfDocument& d, const std::string& text) { d.generalTables[0].headers[0] = text; }},
    {"cell", [](GltfDocument& d, const std::string& text) { d.generalTables[0].rows[0][0] = text; }},
    {"title of a table", [](GltfDocument& d, const std::string& text) { d.designTable->title = text; }},
    {"header of a table", [](GltfDocument& d, const std::string& text) { d.designTable->headers[0] = text; }},
    {"cell of a table", [](GltfDocument& d, const std::string& text) { d.designTable->rows[1][1] = text; }},
    {"animation", [](GltfDocument& d, const std::string& text) { d.animations[0]->name = text; }},
    {"material", [](GltfDocument& d, const std::string& text) { d.materials[0]->mname = text; }},
    {"texture", [](GltfDocument& d, const std::string& text) { d.textures[0]->name = text; }},
    {"picture", [](GltfDocument& d, const std::string& text) { d.images[0]->name = text; }},
    {"buffer", [](GltfDocument& d, const std::string& text) { d.buffers[0]->uri = text; }}};

TEST(StrictJson, RefusesTextsByWhatTheyHoldWhereverTheyStand) {
    const std::pair<std::string, std::string> texts[] = {
        {"M\xC3\xBCller \xE2\x82\xAC \xF0\x9F\x94\xA9 \x7F/", ""},
        {R"(\" \\ \/ \b \f \n \r \t \u00fC)", ""},
        {"\x01", "control character"},
        {"a\x1F", "control character"},
        {std::string("\0", 1), "control character"},
        {"5\" bolt", "quotation mark"},
        {R"(\\")", "quotation mark"},
        {"\\", "backslash"},
        {R"(a\\\)", "backslash"},
        {R"(\a)", "backslash"},
        {R"(\u00g0)", "backslash"},
        {R"(\u004)", "backslash"},
        {"\xFC", "no UTF-8"},
        {"\xC3", "no UTF-8"},
        {"\xC0\x80", "no UTF-8"},
        {"\xED\xA0\x80", "no UTF-8"},
        {"\xF4\x90\x80\x80", "no UTF-8"}};
    for (const auto& [text, reason] : texts) {
        for (const auto& [what, place] : kWritten) {
            const auto reasons = reasonsFor([&](GltfDocument& document) { place(document, text); });
            ASSERT_EQ(reasons.size(), reason.empty() ? 0u : 1u) << text << " as " << what;
            EXPECT_THAT(reasons, testing::Each(testing::AllOf(HasSubstr(reason), HasSubstr(what)))) << text;
        }
    }
}

TEST(StrictJson, DoesNotMindTextsThatAreNotWritten) {
    const std::string bad = "\x01\"";
    EXPECT_THAT(reasonsFor([&](GltfDocument& document) {
                    document.animations[1]->name = bad;
                    document.nodes[0]->fullName = bad;
                    document.displayStatesByComponent[nullptr] = {{bad, {}}};
                    document.generalTables[0].rows[0][1] = bad;
                    document.designTable->rows[1][2] = bad;
                    document.materialRecords[1]->mname = bad;
                    document.textures[1]->name = bad;
                    document.images[1]->name = bad;
                }),
                IsEmpty());
}

TEST(StrictJson, TellsEachReasonOnceAndItsFirstTextSafely) {
    const auto reasons = reasonsFor([](GltfDocument& document) {
        document.nodes[0]->name = "Sch\xC3\xBCtz\xFC\x16";
        document.scenes[0].name = std::string(39, 'x') + "\xC3\xBC\"";
        document.buffers[0]->uri = "\x01\xFF";
    });
    EXPECT_THAT(reasons,
                ElementsAre("the result holds a quotation mark in the name of a scene (" +
                                std::string(39, 'x') +
                                "...), and so, as this format has it, no strict JSON: many viewers "
                                "will not open it",
                            HasSubstr("a control character in the name of a node (Sch\xC3\xBCtz?\?),"),
                            HasSubstr("UTF-8 in the name of a node (Sch\xC3\xBCtz?\?),")));
}

TEST(StrictJson, HasNoNumbersThatAreNotFinite) {
    for (const double number :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity()}) {
        const std::pair<const char*, Change> changes[] = {
            {"placement of a node",
             [&](GltfDocument& d) {
                 d.nodes[0]->comments.clear();
                 d.nodes[0]->matrix[15] = number;
             }},
            {"camera", [&](GltfDocument& d) { d.cameras[0]->yfov = number; }},
            {"camera", [&](GltfDocument& d) { d.cameras[0]->aspectRatio = number; }},
            {"light", [&](GltfDocument& d) { d.lights[0]->intensity = number; }},
            {"light", [&](GltfDocument& d) { d.lights[0]->color[2] = d.lights[0]->intensity = number; }},
            {"material",
             [&](GltfDocument& d) {
                 d.materials[0]->blurry = true;
                 d.materials[0]->a_specularSpread = number;
             }},
            {"bounds of a mesh",
             [&](GltfDocument& d) { (*d.accessors[0]->bounds)[5] = static_cast<float>(number); }}};
        for (const auto& [what, change] : changes) {
            EXPECT_THAT(reasonsFor(change), ElementsAre(HasSubstr(what))) << number;
        }
        for (const Change& maybe : {Change([&](GltfDocument& d) { d.materials[0]->a_transparency = number; }),
                                    Change([&](GltfDocument& d) { d.materials[0]->a_reflectivity = number; }),
                                    Change([&](GltfDocument& d) { d.cameras[0]->index = -1; })}) {
            reasonsFor(maybe);
        }
        EXPECT_THAT(reasonsFor([&](GltfDocument& d) {
                        addRecord(d.cameras).yfov = number;
                        d.materials[0]->a_specularSpread = d.materials[0]->a_emission = number;
                    }),
                    IsEmpty());
    }
}

TEST(StrictJson, MissesACommaBetweenLightsAndADesignTable) {
    EXPECT_THAT(reasonsFor([](GltfDocument& document) { document.generalTables.clear(); }),
                ElementsAre(HasSubstr("lights and a design table, but no general tables")));
    EXPECT_THAT(reasonsFor([](GltfDocument& document) {
                    document.generalTables.clear();
                    document.lights.clear();
                }),
                IsEmpty());
}

TEST(StrictJson, MindsTheCommaBeforeCommentsOfShownComponents) {
    EXPECT_THAT(
        reasonsFor([](GltfDocument& document) { document.nodes[0]->matrix[9] = 1; }),
        ElementsAre("the result holds comments of components that are shown, and so, as this format has "
                    "it, no strict JSON: many viewers will not open it"));
}

} // namespace
} // namespace orvane
