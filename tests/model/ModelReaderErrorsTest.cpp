#include "model/FullDocuments.h"
#include "support/ModelFiles.h"

#include <gmock/gmock.h>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

namespace orvane {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST(ModelReaderErrors, TextThatIsNotJson) {
    ModelFiles files;
    const std::pair<std::string, const char*> refusals[] = {
        {" \n\t", "found an empty file, expected a JSON object"},
        {"{}\n  x", "line 2, column 3: found \"x\", expected the end of the file"},
        {R"({"title")",
         R"(line 1, column 8: found the end of the file, expected a key, ":", a JSON value, "," or "}")"},
        {"{\"box\": [-Infinity]}",
         R"(line 1, column 11: found "-Infinity", expected a JSON value, "," or "]")"},
        {"// no\n{}", "line 1, column 1: found \"/\", expected a JSON object"},
        {"{\"title\": \"a\nb\"}",
         "line 1, column 13: found the end of the line, expected a text that JSON allows"},
        {R"({"title": "\ud800"})",
         "line 1, column 18: found a quotation mark, expected a text that JSON allows"},
        {"{\"title\": \"\xC3(\"}",
         "line 1, column 12: found a byte that is not UTF-8 (value 195), expected UTF-8 text"},
        {"\x7F"
         "ELF\x02",
         "line 1, column 1: found a byte of value 127, expected a JSON object"},
        {"{\"title\": 1e999}",
         "line 1, column 15: found \"1e999\", expected a number within 64-bit floating point"},
        {R"({"lights": [{}, {"on": true, "name": "a", "on": true}]})",
         "/lights/1: found the key \"on\" twice, expected it once"}};
    for (const auto& [text, message] : refusals) {
        EXPECT_EQ(files.refusalOf("a.tfgprt", text), std::string("a.tfgprt: ") + message);
    }
    // Every way of cutting a document short is refused, and says where.
    const std::string whole = R"({"title": "T\u00e4", "box": [0, -1.5e1, true, null]})";
    EXPECT_EQ(files.refusalOf("a.tfgprt", ""), "a.tfgprt: found an empty file, expected a JSON object");
    for (std::size_t length = 1; length < whole.size(); ++length) {
        EXPECT_THAT(
            files.refusalOf("a.tfgprt", whole.substr(0, length)),
            testing::AllOf(StartsWith("a.tfgprt: line 1, column "), HasSubstr("found the end of the file")));
    }
}

TEST(ModelReaderErrors, NestingIsLimitedWithoutRecursion) {
    ModelFiles files;
    const auto repeated = [](const std::string& piece, int count) {
        std::string text;
        while (count-- > 0) {
            text += piece;
        }
        return text;
    };
    for (const char* bracket : {"[", "{\"features\":["}) {
        EXPECT_THAT(files.refusalOf("a.tfgprt", repeated(bracket, 100'000)),
                    EndsWith("found more than 1000 brackets open at once, expected fewer"));
    }
    // As deep as it may be: 499 features one in the other, which the tree holds flat.
    const std::string deep = '{' + repeated(R"("features":[{)", 499) + repeated("}]", 499) + '}';
    EXPECT_EQ(files.readText("a.tfgprt", deep).documents[0]->features.back().parent, 497);
}

TEST(ModelReaderErrors, FilesThatCannotBeRead) {
    ModelFiles files;
    std::filesystem::create_directory(files.folder() / "folder.tfgprt");
    EXPECT_EQ(files.refusal("folder.tfgprt"), "folder.tfgprt: found a folder, expected a model document");
    EXPECT_EQ(files.refusal("none.tfgasm"), "none.tfgasm: found no file, expected a model document");
    EXPECT_EQ(files.refusalOf("model.obj", "{}"),
              "model.obj: found a file of another kind, expected .tfgprt, .tfgasm, .step or .stp");
}

using Json = nlohmann::json;

/// A full document and the paths of all values in it.
struct FullDocument {
    std::string file;
    Json whole;
    std::set<std::string> paths;

    FullDocument(std::string name, const char* text) : file(std::move(name)), whole(Json::parse(text)) {
        const Json leaves = whole.flatten();
        for (const auto& [leaf, value] : leaves.items()) {
            for (Json::json_pointer path(leaf); !path.empty(); path.pop_back()) {
                paths.insert(path.to_string());
            }
        }
        paths.insert("");
    }

    const Json& at(const std::string& path) const { return whole.at(Json::json_pointer(path)); }

    /// The refusal with another value at `path`, behind the name of the file and that path.
    std::string refusalWith(const ModelFiles& files, const std::string& path, const Json& value) const {
        Json changed = whole;
        changed[Json::json_pointer(path)] = value;
        const std::string message = files.refusalOf(file, changed.dump());
        std::string head = file + (path.empty() ? "" : ": " + path);
        head += message.starts_with(head + ": ") ? ": " : "";
        return message.starts_with(head) ? message.substr(head.size()) : "elsewhere: " + message;
    }
};

struct ModelReaderKeys : testing::Test {
    ModelReaderKeys() { files.write("part.tfgprt", "{}"); }

    ModelFiles files;
    const FullDocument part{"a.tfgprt", kFullPart}, assembly{"a.tfgasm", kFullAssembly};
};

TEST_F(ModelReaderKeys, TakeNoValueOfAnotherType) {
    for (const FullDocument& document : {part, assembly}) {
        for (const std::string& path : document.paths) {
            const Json other = document.at(path).is_structured() ? Json(true) : Json{{"?", 1}};
            EXPECT_THAT(document.refusalWith(files, path, other), StartsWith("found ")) << path;
        }
    }
}

TEST_F(ModelReaderKeys, AreKnownInEveryKindOfObject) {
    std::map<std::set<std::string>, std::set<std::string>> ungiven; // by the keys of a kind of object
    for (const FullDocument& document : {part, assembly}) {
        for (const std::string& path : document.paths) {
            Json value = document.at(path);
            if (!value.is_object() || path.ends_with("/placements")) {
                continue;
            }
            value["?"] = 1;
            const std::string message = document.refusalWith(files, path, value);
            const std::string head = "found the key \"?\", expected one of ";
            ASSERT_THAT(message, StartsWith(head)) << path;
            const std::set<std::string> known = Json::parse('[' + message.substr(head.size()) + ']');
            std::set<std::string>& left = ungiven.try_emplace(known, known).first->second;
            for (const auto& [key, entry] : value.items()) {
                left.erase(key);
            }
        }
    }
    // The full documents give every key, so that none goes untested here and in the tests of the reader.
    std::vector<std::string> missing;
    for (const auto& [known, left] : ungiven) {
        missing.insert(missing.end(), left.begin(), left.end());
    }
    EXPECT_THAT(missing, testing::ElementsAre("file")); // of a body: needs a kernel
}

/// What has the right type and is refused all the same: lengths, ranges, words, references, what is required.
struct Refusal {
    const char* path; ///< where the value is put
    const char* value;
    const char* message; ///< what is expected, or all of it where what is found is told in other words
};

const Refusal kPartRefusals[] = {
    {"/activeConfiguration", R"("C")", "the name of a configuration of this document"},
    {"/configurations", "[]", "found an empty list, expected at least one configuration"},
    {"/configurations/0", "{}", R"(found no "name", expected it to be given)"},
    {"/configurations/0/explodeSteps", "1.5", "a whole number from -2147483648 to 2147483647"},
    {"/configurations/0/customProperties", R"([{"type": "Real"}])",
     R"(/0/type: found "Real", expected one of "Number", "Double", "YesNo", "Text", "Date")"},
    {"/configurations/1/bodies/0", R"("Lid")", "the name of a body of this document"},
    {"/features/0/definition/seeds/1", R"("Cut")", "the name of a feature of this document"},
    {"/bodies/0", R"({"faces": [], "file": "a.stl"})",
     R"(found more than one of "faces", "shape", "file", expected one of them)"},
    {"/bodies/0/file", R"("b.stl")", R"(found "b.stl", which is no file, expected a file that is there)"},
    {"/bodies/0/file", R"("a.tfgprt")", "a file that ends in .step, .stp or .stl"},
    {"/bodies/1/faces/0", "{}", R"(found no "positions", expected it to be given)"},
    {"/bodies/1/faces/0/positions", "[1,2,3,4,5,6,7,8,9,10]", "found 10 numbers, expected a multiple of 9"},
    {"/bodies/1/faces/0/userValue", "4294967296", "a whole number from -2147483648 to 4294967295"},
    {"/bodies/1/faces/1/feature", R"("Cut")", "the name of a feature of this document"},
    {"/bodies/1/faces/2/positions/3", "1e+39", "a number within 32-bit floating point"},
    {"/bodies/1/faces/2/normals", "[1, 2, 3]", "found 3 numbers, expected 9, 9 a triangle"},
    {"/bodies/1/faces/2/texCoords", "[1, 2, 3]", "found 3 numbers, expected 6, 6 a triangle"},
    {"/bodies/3/shape", "{}", "found 0 shapes, expected one"},
    {"/bodies/3/shape/box/size/1", "0", "a length above 0"},
    {"/bodies/4/shape/cylinder", R"({"radius": 1})", R"(found no "height", expected it to be given)"},
    {"/bodies/5/shape", R"({"sphere": {"radius": 1e300}})",
     "found a shape that reaches beyond 32-bit floating point, expected a smaller one"},
    {"/bodies/5/shape/sphere/segments", "2", "a whole number from 3 to 1000"},
    {"/appearances/0/texture", R"("a\u0000b")", R"(found "a b", expected a file name)"},
    {"/appearances/0/primaryColor", R"("#12345")", R"("#RRGGBB" or three whole numbers from 0 to 255)"},
    {"/appearances/0/primaryColor", R"("#12345G")", R"("#RRGGBB" or three whole numbers from 0 to 255)"},
    {"/appearances/1/secondaryColor/1", "256", "a whole number from 0 to 255"},
    {"/appearances/1/appliedTo/0", R"("part")",
     R"("document" or an object with "body", "feature", "face" or "component")"},
    {"/appearances/1/appliedTo/0", R"({"body": "Body3", "feature": "F"})", "found 2 entities, expected one"},
    {"/appearances/1/appliedTo/3/face", R"(["Body2"])",
     "found a list of 1, expected the name of a body and a face's position from 0"},
    {"/appearances/1/appliedTo/3/face/1", "3", "the position of one of the body's 3 faces, from 0"},
    {"/appearances/1/configurations/0", R"("C")", "the name of a configuration of this document"},
    {"/appearances/1/displayStates/0", R"("D")", "the name of a display state of this document"}};

const Refusal kAssemblyRefusals[] = {
    {"/box", "[1, 2, 3]", "found a list of 3, expected a list of 6 numbers"},
    {"/appearances/0/appliedTo/0", R"("document")",
     R"(found "document" in an assembly, expected a feature or a component (only a part takes appearances itself))"},
    {"/components/0/document", R"("mesh.stl")", "a file that ends in .tfgprt, .tfgasm, .step or .stp"},
    {"/components/0/components/1/name", R"("a/b")", R"(a name without "/")"},
    {"/components/0/state", "4", "a whole number from 0 to 3"},
    {"/components/0/placementFallback", "null", "a list of 16 numbers or an object"},
    {"/root/placement/rotate", R"({"axis": [0, -0.0, 0], "degrees": 5})",
     "/axis: found an axis of length 0, expected a direction"},
    {"/namedViews/0", "{}", R"(found no "name", expected it to be given)"},
    {"/motionStudies/0/frameRate", "-1", "a whole number from 0 to 2147483647"},
    {"/motionStudies/0/tracks/0/interpolation", R"("spline")", R"(one of "linear", "step")"},
    {"/motionStudies/0/tracks/0/keys", R"([{"time": 1}, {"time": 2}, {"time": 2}])",
     "/2: found a key that is not later than the one before, expected keys in ascending time order"},
    {"/annotations/0/table", R"({"attach": false})",
     R"(found the key "attach", expected one of "title", "headers", "rows")"}};

TEST_F(ModelReaderKeys, TakeNoValueOutOfRangeAndNoReferenceToNothing) {
    files.write("mesh.stl", "");
    const auto expectRefusal = [&](const FullDocument& document, const Refusal& refusal) {
        const auto& [path, value, message] = refusal;
        EXPECT_THAT(
            document.refusalWith(files, path, Json::parse(value)),
            testing::AnyOf(std::string(message), "found " + std::string(value) + ", expected " + message))
            << path;
    };
    for (const Refusal& refusal : kPartRefusals) {
        expectRefusal(part, refusal);
    }
    for (const Refusal& refusal : kAssemblyRefusals) {
        expectRefusal(assembly, refusal);
    }
}

TEST_F(ModelReaderKeys, StandInDocumentsOfTheirKind) {
    for (const std::string key : {"components", "root", "explodedViews"}) {
        EXPECT_EQ(part.refusalWith(files, "", Json{{key, 1}}),
                  "found \"" + key + "\", expected none in a part: only assemblies have it");
    }
    EXPECT_EQ(assembly.refusalWith(files, "", Json{{"bodies", 1}}),
              "found \"bodies\", expected none in an assembly: only parts have it");
}

TEST(ModelReaderErrors, DocumentsThatAreMentionedComplainUnderTheirOwnName) {
    ModelFiles files;
    files.write("parts/bad.tfgprt", R"({"view": 1})");
    EXPECT_EQ(files.refusalOf("sub/a.tfgasm",
                              R"({"components": [{"name": "a", "document": "../parts/bad.tfgprt"}]})"),
              "parts/bad.tfgprt: /view: found 1, expected an object");
}

TEST_F(ModelReaderKeys, NameComponentsThatAreThere) {
    for (const char* place :
         {"/configurations/1/suppressed/0", "/configurations/1/hidden/0", "/configurations/1/shown/0",
          "/configurations/1/displayStates/1/hidden/0", "/configurations/1/displayStates/1/shown/0",
          "/appearances/0/appliedTo/0/component", "/motionStudies/0/tracks/0/component",
          "/explodedViews/0/steps/0/components/0"}) {
        EXPECT_EQ(assembly.refusalWith(files, place, "x/z~"),
                  "found \"x/z~\", expected the full name of a component of this document")
            << place;
    }
    EXPECT_EQ(assembly.refusalWith(files, "/configurations/1/placements/x~1z~0", Json::object()),
              "found \"x/z~\", expected the full name of a component of this document");
}

TEST(ModelReaderErrors, MessagesStayShortAndOnOneLine) {
    ModelFiles files;
    const std::string longText = R"(a\n)" + std::string(37, 'x') + "\xC3\xA4" + std::string(5000, 'y');
    const std::string shown = "\"a " + std::string(37, 'x') + "...\"";
    EXPECT_EQ(files.refusalOf("a.tfgprt", R"({"box": ")" + longText + R"("})"),
              "a.tfgprt: /box: found " + shown + ", expected a list of 6 numbers");
    EXPECT_THAT(files.refusalOf("a.tfgprt", R"({"view": {")" + longText + R"(": 1}})"),
                StartsWith("a.tfgprt: /view: found the key " + shown + ", expected one of"));
}

} // namespace
} // namespace orvane
