#include "metadata/Comments.h"

#include "support/ExportRun.h"

#include <gmock/gmock.h>

namespace orvane::metadata {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

FeatureRecord commentsFolder(const std::vector<CommentRecord>& comments) {
    return {.name = u"Comments", .type = u"CommentsFolder", .comments = comments};
}

TEST(CommentText, StandsInOneLine) {
    EXPECT_EQ(cleanText("\n\n\ra\r\nend\r"), "\\n\\na\\nend");
    EXPECT_EQ(cleanText("\\n \"q\"\ttab"), "\\n \"q\"\ttab") << "nothing else is escaped";
}

/// The comments at the node of an empty document, as a strict reader sees them.
std::string commentsOf(const std::vector<FeatureRecord>& features, DocumentKind kind = DocumentKind::part) {
    ModelBuilder builder;
    builder.document(kind, u"note").features = features;
    return ExportRun(builder.take()).json()["nodes"][0].value("extensions", nlohmann::json()).dump();
}

TEST(Comments, AreThoseOfTheFirstFolderAtTheTopOfTheTree) {
    const FeatureRecord folder = commentsFolder({{u"n", u"\u040A\u040D|"}});
    const FeatureRecord other = commentsFolder({{u"late", u"not seen"}});
    const FeatureRecord group = {.name = u"Group", .comments = {{u"no folder", u"x"}}};
    FeatureRecord below = other;
    below.parent = 0;
    const std::string expected = R"({"Tessaforge_comments":{"comments":[{"name":"n","text":"\n|"}]}})";
    EXPECT_EQ(commentsOf({group, below, folder, other}), expected)
        << "cleaned after folding: the low bytes are a line feed and a carriage return";
    EXPECT_EQ(commentsOf({folder}, DocumentKind::assembly), expected);
    EXPECT_EQ(commentsOf({group, below}), "null");
    EXPECT_EQ(commentsOf({commentsFolder({}), other}), "null") << "an empty folder ends the search too";
}

TEST(Comments, GoToEveryNodeThatShowsTheDocument) {
    ModelBuilder builder;
    ModelDocument& assembly = builder.assembly(u"top.tfgasm");
    ModelDocument& note = builder.document(DocumentKind::part, u"note.tfgprt");
    note.features = {commentsFolder({{u"n", u"t"}})};
    for (const char16_t* name : {u"suppressed", u"hidden", u"unloaded"}) {
        assembly.components.push_back(ModelBuilder::component(name, &note));
    }
    assembly.components[0].suppressed = true;
    assembly.components[1].hidden = true;
    assembly.components[2].loaded = false;
    assembly.components.push_back(ModelBuilder::component(u"group"));
    assembly.components[3].components = {ModelBuilder::component(u"inside", &note)};
    std::vector<std::string> commented;
    const nlohmann::json gltf = ExportRun(builder.take()).json();
    for (const auto& node : gltf["nodes"]) {
        if (node.contains("extensions")) {
            commented.push_back(node["name"]);
        }
    }
    EXPECT_THAT(commented, ElementsAre("suppressed", "hidden", "unloaded", "inside"));
}

TEST(Comments, OfADocumentAreReadOnce) {
    ModelBuilder builder;
    builder.document(DocumentKind::part, u"note.tfgprt").features = {commentsFolder({{u"n", u"t"}})};
    const HostRef<HostApplication> host = openEmbeddedHost(builder.take());
    DocumentComments comments;
    const GltfComment* const first = comments.of(host->activeDocument()).data();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(comments.of(host->activeDocument()).data(), first);
}

TEST(Comments, AreWarnedOfWhereStrictReadersRefuseThem) {
    for (const bool hasMesh : {false, true}) {
        ModelBuilder builder;
        ModelDocument& part =
            hasMesh ? builder.part(u"p.tfgprt") : builder.document(DocumentKind::part, u"p.tfgprt");
        part.features = {commentsFolder({{u"n", u"t"}})};
        ExportRun run(builder.take());
        EXPECT_EQ(nlohmann::json::accept(run.run("x.gltf")), !hasMesh);
        EXPECT_EQ(run.exporter.report().warnings.size(), hasMesh);
        EXPECT_THAT(run.exporter.report().warnings, testing::Each(HasSubstr("no strict JSON")));
    }
}

} // namespace
} // namespace orvane::metadata
