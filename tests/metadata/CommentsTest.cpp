#include "metadata/Comments.h"

#include "support/ExportRun.h"

#include <gmock/gmock.h>

namespace orvane::metadata {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

FeatureRecord commentsFolder(const std::vector<CommentRecord>& comments) {
    return {.name = u"Comments", .type = u"CommentsFolder", .comments = comments};
}

TEST(CommentText, StandsInOneLine) {
    EXPECT_EQ(cleanText("a\r\nb"), "a\\nb");
    EXPECT_EQ(cleanText("\n\n\rend\r"), "\\n\\nend");
    EXPECT_EQ(cleanText("\\n \"q\"\ttab"), "\\n \"q\"\ttab") << "nothing else is escaped";
    EXPECT_EQ(cleanText(""), "");
}

/// A part without bodies, so that a node which shows it has no mesh.
class Comments : public testing::Test {
protected:
    /// The comments of the node behind the root, as a strict reader sees them.
    std::string commentsOf(const std::vector<FeatureRecord>& features) {
        ModelBuilder builder;
        ModelDocument& assembly = builder.assembly(u"top.tfgasm");
        ModelDocument& note = builder.document(DocumentKind::part, u"note.tfgprt");
        note.features = features;
        assembly.components = {ModelBuilder::component(u"note", &note)};
        return ExportRun(builder.take()).json()["nodes"][1].value("extensions", nlohmann::json()).dump();
    }

    static std::string extension(const std::string& comments) {
        return R"({"Tessaforge_comments":{"comments":[)" + comments + "]}}";
    }
};

TEST_F(Comments, AreThoseOfTheFirstFolderInOrder) {
    const FeatureRecord folder =
        commentsFolder({{u"Zwölf", u"a\r\nb"}, {u"empty", u""}, {u"x/\"y\"", u"50; \\"}});
    const std::string expected = extension(R"({"name":"Zwolf","text":"a\nb"},{"name":"empty","text":""},)"
                                           R"({"name":"x__y_","text":"50_ _"})");
    const FeatureRecord other = commentsFolder({{u"late", u"not seen"}});
    EXPECT_EQ(commentsOf({{.name = u"Sketch"}, folder, other}), expected);
    EXPECT_EQ(commentsOf({commentsFolder({}), other}), "null") << "an empty folder ends the search too";
}

TEST_F(Comments, AreCleanedAfterTheirCharactersAreFolded) {
    EXPECT_EQ(commentsOf({commentsFolder({{u"n", u"\u040A\u040D|"}})}),
              extension(R"({"name":"n","text":"\n|"})"))
        << "characters whose low bytes are a line feed and a carriage return";
}

TEST_F(Comments, ComeOnlyFromFoldersAtTheTopOfTheTree) {
    FeatureRecord below = commentsFolder({{u"below", u"x"}});
    below.parent = 0;
    EXPECT_EQ(commentsOf({{.name = u"Group"}, below}), "null");
    EXPECT_EQ(commentsOf({{.name = u"Group", .comments = {{u"no folder", u"x"}}}}), "null");
    EXPECT_EQ(commentsOf({{.name = u"Group"}, below, commentsFolder({{u"top", u"y"}})}),
              extension(R"({"name":"top","text":"y"})"));
}

TEST_F(Comments, GoToEveryNodeThatShowsTheDocument) {
    ModelBuilder builder;
    ModelDocument& assembly = builder.assembly(u"top.tfgasm");
    ModelDocument& note = builder.document(DocumentKind::part, u"note.tfgprt");
    note.features = {commentsFolder({{u"n", u"t"}})};
    ComponentRecord suppressed = ModelBuilder::component(u"suppressed", &note);
    suppressed.suppressed = true;
    ComponentRecord hidden = ModelBuilder::component(u"hidden", &note);
    hidden.hidden = true;
    ComponentRecord unloaded = ModelBuilder::component(u"unloaded", &note);
    unloaded.loaded = false;
    ComponentRecord group = ModelBuilder::component(u"group");
    group.components = {ModelBuilder::component(u"inside", &note)};
    assembly.components = {suppressed, hidden, unloaded, group, ModelBuilder::component(u"plain")};
    ExportRun run(builder.take());
    std::vector<std::string> commented;
    const nlohmann::json gltf = run.json();
    for (const auto& node : gltf["nodes"]) {
        if (node.contains("extensions")) {
            commented.push_back(node["name"]);
        }
    }
    EXPECT_THAT(commented, ElementsAre("suppressed", "hidden", "unloaded", "inside"));
}

TEST_F(Comments, StandOnceAtEachNodeOfEachScene) {
    ModelBuilder builder;
    ModelDocument& assembly = builder.assembly(u"top.tfgasm");
    ModelDocument& part = builder.part(u"part.tfgprt");
    assembly.configurations = {ModelBuilder::configuration(u"One", {u"A", u"B"})};
    assembly.features = {commentsFolder({{u"root", u"r"}})};
    part.features = {commentsFolder({{u"n", u"t"}})};
    assembly.components = {ModelBuilder::component(u"a", &part), ModelBuilder::component(u"b", &part)};
    ExportRun run(builder.take());
    const std::string text = run.run("x.gltf");
    const auto count = [&](const std::string& wanted) {
        std::size_t found = 0;
        for (std::size_t at = text.find(wanted); at != std::string::npos; at = text.find(wanted, at + 1)) {
            ++found;
        }
        return found;
    };
    EXPECT_EQ(count("Tessaforge_comments"), 6u);
    EXPECT_EQ(count("{ \"name\": \"root\", \"text\": \"r\" }\n"), 2u);
    EXPECT_EQ(count("{ \"name\": \"n\", \"text\": \"t\" }\n"), 4u);
}

TEST_F(Comments, OfAPartDocumentStandAtItsNode) {
    ModelBuilder builder;
    builder.document(DocumentKind::part, u"note.tfgprt").features = {commentsFolder({{u"n", u"t"}})};
    EXPECT_EQ(ExportRun(builder.take()).json()["nodes"][0]["extensions"].dump(),
              extension(R"({"name":"n","text":"t"})"));
}

TEST_F(Comments, OfADocumentAreReadOnce) {
    ModelBuilder builder;
    ModelDocument& assembly = builder.assembly(u"top.tfgasm");
    ModelDocument& note = builder.part(u"note.tfgprt");
    note.features = {commentsFolder({{u"n", u"t"}})};
    assembly.components = {ModelBuilder::component(u"a", &note), ModelBuilder::component(u"b", &note)};
    const HostRef<HostApplication> host = openEmbeddedHost(builder.take());
    const HostRef<HostModelDoc> opened = host->activeDocument();
    const auto components = opened->getActiveConfiguration()->getRootComponent()->getChildren();
    DocumentComments comments;
    const std::vector<GltfComment>* const first = &comments.of(shownDocument(*components[0]));
    EXPECT_EQ(first->size(), 1u);
    EXPECT_EQ(first, &comments.of(shownDocument(*components[1])));
    EXPECT_TRUE(comments.of(opened).empty());
}

TEST_F(Comments, AreWarnedOfWhereStrictReadersRefuseThem) {
    const auto warningsFor = [](bool hasMesh) {
        ModelBuilder builder;
        ModelDocument& part =
            hasMesh ? builder.part(u"p.tfgprt") : builder.document(DocumentKind::part, u"p.tfgprt");
        part.features = {commentsFolder({{u"n", u"t"}})};
        ExportRun run(builder.take());
        const bool isStrict = nlohmann::json::accept(run.run("x.gltf"));
        EXPECT_EQ(isStrict, !hasMesh);
        return run.exporter.report().warnings;
    };
    EXPECT_THAT(warningsFor(false), testing::IsEmpty());
    EXPECT_THAT(warningsFor(true), ElementsAre(HasSubstr("no strict JSON")));
}

} // namespace
} // namespace orvane::metadata
