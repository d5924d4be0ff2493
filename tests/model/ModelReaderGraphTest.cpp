#include "support/ModelFiles.h"

#include <functional>
#include <gmock/gmock.h>
#include <pthread.h>

namespace orvane {
namespace {

using testing::EndsWith;

/// An assembly of components with the names a, b, c …, each showing one of these documents.
std::string assemblyOf(const std::vector<std::string>& documents, const std::string& rest = "") {
    std::string text = R"({"components": [)";
    for (std::size_t i = 0; i < documents.size(); ++i) {
        text += (i == 0 ? "" : ", ") + (R"({"name": ")" + std::string(1, static_cast<char>('a' + i))) +
                R"(", "document": ")" + documents[i] + "\"}";
    }
    return text + ']' + rest + '}';
}

/// Calls `work` in a thread that has 256 KB of stack.
void callOnSmallStack(std::function<void()> work) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
    pthread_t thread{};
    const auto start = [](void* argument) -> void* {
        (*static_cast<std::function<void()>*>(argument))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, start, &work), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

TEST(ModelReaderGraph, EachDocumentOnceInOrderOfFirstMention) {
    ModelFiles files;
    files.write("top.tfgasm",
                assemblyOf({"sub/one.tfgasm", "x.tfgprt", "sub/../sub/one.tfgasm", "z.tfgprt"}));
    files.write("sub/one.tfgasm", assemblyOf({"../y.tfgprt", "../link.tfgprt", "two.tfgasm"}));
    files.write("sub/two.tfgasm", assemblyOf({"../y.tfgprt"}));
    for (const char* part : {"x.tfgprt", "y.tfgprt", "z.tfgprt"}) {
        files.write(part, "{}");
    }
    std::filesystem::create_symlink("x.tfgprt", files.folder() / "link.tfgprt");
    const Model model = files.read("top.tfgasm");
    std::vector<std::u16string> titles;
    for (const auto& document : model.documents) {
        titles.push_back(document->title);
    }
    EXPECT_THAT(titles, testing::ElementsAre(u"top.tfgasm", u"one.tfgasm", u"y.tfgprt", u"link.tfgprt",
                                             u"two.tfgasm", u"z.tfgprt"));
    const auto& components = model.documents[0]->components;
    EXPECT_EQ(components[0].document, components[2].document);
    EXPECT_EQ(components[1].document, model.documents[3].get());
}

TEST(ModelReaderGraph, DocumentsThatReferToThemselves) {
    ModelFiles files;
    const std::string tail =
        "\", which leads back to itself, expected documents that do not refer to themselves";
    files.write("leaf.tfgprt", "{}");
    files.write("b.tfgasm", assemblyOf({"c.tfgasm"}));
    files.write("c.tfgasm", assemblyOf({"leaf.tfgprt", "b.tfgasm"}));
    EXPECT_EQ(files.refusalOf("a.tfgasm", assemblyOf({"leaf.tfgprt", "b.tfgasm"})),
              "c.tfgasm: /components/1/document: found \"b.tfgasm" + tail);
    // Also where components of its own stand in for those of the document.
    EXPECT_THAT(
        files.refusalOf("a.tfgasm",
                        R"({"components": [{"name": "x", "document": "a.tfgasm", "components": []}]})"),
        EndsWith(tail));
}

TEST(ModelReaderGraph, FullNamesLeadThroughInstancedAssemblies) {
    ModelFiles files;
    files.write("part.tfgprt", "{}");
    files.write("inner.tfgasm", assemblyOf({"part.tfgprt", "part.tfgprt"}));
    files.write("middle.tfgasm",
                assemblyOf({"inner.tfgasm"}, R"(, "configurations": [{"name": "A", "hidden": ["a/b"]}])"));
    const auto refusal = [&](const std::string& name) {
        return files.refusalOf("top.tfgasm", R"({"configurations": [{"name": "A", "hidden": [")" + name +
                                                 R"("]}], "components": [
            {"name": "x", "document": "part.tfgprt"}, {"name": "x", "document": "middle.tfgasm"},
            {"name": "own", "document": "middle.tfgasm", "components": [{"name": "only"}]}]})");
    };
    for (const char* name : {"x", "x/a", "x/a/b", "own/only"}) {
        EXPECT_EQ(refusal(name), "accepted") << name;
    }
    for (const char* name : {"", "x/", "/x", "x/b", "x/a/b/c", "own/a", "a", "X"}) {
        EXPECT_EQ(refusal(name), "top.tfgasm: /configurations/0/hidden/0: found \"" + std::string(name) +
                                     "\", expected the full name of a component of this document");
    }
}

TEST(ModelReaderGraph, InstancingBombsAreCountedNotBuilt) {
    ModelFiles files;
    files.write("0.tfgasm", assemblyOf(std::vector<std::string>(9, "leaf.tfgprt")));
    files.write("leaf.tfgprt", "{}");
    // Ten components show ten components, and so on: level n has 10 * (1 + what level n - 1 has).
    for (int level = 1; level <= 60; ++level) {
        files.write(std::to_string(level) + ".tfgasm",
                    assemblyOf(std::vector<std::string>(10, std::to_string(level - 1) + ".tfgasm")));
    }
    EXPECT_EQ(files.refusal("5.tfgasm"), "accepted"); // 1,011,110
    for (const std::string name : {"6.tfgasm", "60.tfgasm"}) {
        EXPECT_EQ(files.refusal(name), name + ": /components: found more than 2000000 components with all "
                                              "sub-assemblies instanced, expected fewer");
    }
}

TEST(ModelReaderGraph, LongChainsOfDocuments) {
    ModelFiles files;
    const auto writeChain = [&](int length, const std::string& ownChildren) {
        for (int i = 0; i < length; ++i) {
            files.write(std::to_string(i) + ".tfgasm", R"({"components": [{"name": "c", "document": ")" +
                                                           std::to_string(i + 1) + ".tfgasm\"" + ownChildren +
                                                           "}]}");
        }
        files.write(std::to_string(length) + ".tfgasm", "{}");
    };
    writeChain(257, "");
    EXPECT_EQ(files.refusal("1.tfgasm"), "accepted");
    EXPECT_EQ(files.refusal("0.tfgasm"),
              "0.tfgasm: /components: found more than 256 components one below the other, expected fewer");
    // Components of their own keep the tree flat, so only the reader meets the chain: its calls must not nest
    // with it.
    writeChain(1500, R"(, "components": [])");
    std::size_t documents = 0;
    callOnSmallStack([&] { documents = files.read("0.tfgasm").documents.size(); });
    EXPECT_EQ(documents, 1501u);
}

} // namespace
} // namespace orvane
