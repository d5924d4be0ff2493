#include "model/FullDocuments.h"
#include "support/ModelFiles.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <span>

namespace orvane {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

struct Refusal {
    const char* text;
    const char* message; ///< behind the file's name
};

void expectRefusals(const ModelFiles& files, const std::string& name, std::span<const Refusal> refusals) {
    for (const auto& [text, message] : refusals) {
        EXPECT_EQ(files.refusalOf(name, text), name + ": " + message) << text;
    }
}

TEST(ModelReaderErrors, TextThatIsNotJson) {
    ModelFiles files;
    const auto afterRoot = R"(expected a key, ":", a JSON value, "," or "}")";
    const Refusal refusals[] = {
        {"", "found an empty file, expected a JSON object"},
        {" \n\t", "found an empty file, expected a JSON object"},
        {"{}\n  x", "line 2, column 3: found \"x\", expected the end of the file"},
        {"[1, 2", R"(line 1, column 5: found the end of the file, expected a JSON value, "," or "]")"},
        {"{\"box\": [NaN]}", R"(line 1, column 10: found "NaN", expected a JSON value, "," or "]")"},
        {"{\"box\": [-Infinity]}",
         R"(line 1, column 11: found "-Infinity", expected a JSON value, "," or "]")"},
        {"// no\n{}", "line 1, column 1: found \"/\", expected a JSON object"},
        {"{\"title\": \"a\nb\"}",
         "line 1, column 13: found the end of the line, expected a text that JSON allows"},
        {R"({"title": "\ud800"})",
         "line 1, column 18: found a quotation mark, expected a text that JSON allows"},
        {"{\"title\": \"\xC3(\"}",
         "line 1, column 12: found a byte that is not UTF-8 (value 195), expected UTF-8 text"},
        {"\xFF\xFE{", "line 1, column 1: found a byte that is not UTF-8 (value 255), expected UTF-8 text"},
        {"\x7F"
         "ELF\x02",
         "line 1, column 1: found a byte of value 127, expected a JSON object"},
        {"{\"title\": 1e999}",
         "line 1, column 15: found \"1e999\", expected a number within 64-bit floating point"},
        {R"({"view": {"name": "a", "mode": 1, "name": "b"}})",
         "/view: found the key \"name\" twice, expected it once"},
        {R"({"lights": [{}, {"on": true, "on": true}]})",
         "/lights/1: found the key \"on\" twice, expected it once"}};
    expectRefusals(files, "a.tfgprt", refusals);
    // Every way of cutting a document short is refused, and says where.
    const std::string whole = R"({"title": "T\u00e4", "box": [0, -1.5e1, true, null]})";
    for (std::size_t length = 1; length < whole.size(); ++length) {
        EXPECT_THAT(
            files.refusalOf("a.tfgprt", whole.substr(0, length)),
            testing::AllOf(StartsWith("a.tfgprt: line 1, column "), HasSubstr("found the end of the file")));
    }
    EXPECT_THAT(files.refusalOf("a.tfgprt", "{\"title\""), EndsWith(afterRoot));
}

TEST(ModelReaderErrors, NestingIsLimitedWithoutRecursion) {
    ModelFiles files;
    for (const char* bracket : {"[", "{\"features\":["}) {
        std::string text;
        for (int i = 0; i < 100'000; ++i) {
            text += bracket;
        }
        EXPECT_THAT(files.refusalOf("a.tfgprt", text),
                    EndsWith("found more than 1000 brackets open at once, expected fewer"));
    }
    // As deep as it may be: 499 features one in the other, which the tree holds flat.
    std::string text = "{";
    for (int i = 0; i < 499; ++i) {
        text += R"("features":[{)";
    }
    for (int i = 0; i < 499; ++i) {
        text += "}]";
    }
    EXPECT_EQ(files.readText("a.tfgprt", text + '}').documents[0]->features.back().parent, 497);
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

    /// The refusal with another value at `path`, behind the name of the file and the path.
    std::string refusalWith(const ModelFiles& files, const std::string& path, const Json& value) const {
        Json changed = whole;
        changed[Json::json_pointer(path)] = value;
        const std::string message = files.refusalOf(file, changed.dump());
        const std::string head = file + (path.empty() ? "" : ": " + path) + ": ";
        return message.starts_with(head) ? message.substr(head.size()) : "elsewhere: " + message;
    }
};

struct ModelReaderKeys : testing::Test {
    ModelReaderKeys() { files.write("part.tfgprt", "{}"); }

    ModelFiles files;
    const FullDocument documents[2] = {{"a.tfgprt", kFullPart}, {"a.tfgasm", kFullAssembly}};
};

TEST_F(ModelReaderKeys, TakeNoValueOfAnotherType) {
    for (const FullDocument& document : documents) {
        for (const std::string& path : document.paths) {
            const Json other = document.at(path).is_structured() ? Json(true) : Json{{"?", 1}};
            EXPECT_THAT(document.refusalWith(files, path, other), StartsWith("found ")) << path;
        }
    }
}

TEST_F(ModelReaderKeys, AreKnownInEveryKindOfObject) {
    std::map<std::string, std::set<std::string>> given; // keys by the list of those that are expected
    for (const FullDocument& document : documents) {
        for (const std::string& path : document.paths) {
            Json value = document.at(path);
            if (!value.is_object() || path.ends_with("/placements")) {
                continue;
            }
            std::set<std::string> keys;
            for (const auto& [key, entry] : value.items()) {
                keys.insert(key);
            }
            value["?"] = 1;
            const std::string message = document.refusalWith(files, path, value);
            const std::string head = "found the key \"?\", expected one of ";
            ASSERT_THAT(message, StartsWith(head)) << path;
            given[message.substr(head.size())].merge(keys);
        }
    }
    // The full documents give every key, so that none goes untested here and in the tests of the reader.
    std::vector<std::string> missing;
    for (const auto& [list, keys] : given) {
        const Json allowed = Json::parse('[' + list + ']');
        for (const std::string key : allowed) {
            if (!keys.contains(key)) {
                missing.push_back(key);
            }
        }
    }
    EXPECT_THAT(missing, testing::ElementsAre("file")); // of a body: needs a kernel
}

/// What has the right type and is refused all the same: lengths, ranges, words, references, what is required.
const Refusal kPartRefusals[] = {
    {R"({"components": []})", "found \"components\", expected none in a part: only assemblies have it"},
    {R"({"root": {}})", "found \"root\", expected none in a part: only assemblies have it"},
    {R"({"explodedViews": []})", "found \"explodedViews\", expected none in a part: only assemblies have it"},
    {R"({"configurations": []})",
     "/configurations: found an empty list, expected at least one configuration"},
    {R"({"configurations": [{}]})", "/configurations/0: found no \"name\", expected it to be given"},
    {R"({"activeConfiguration": "B"})",
     "/activeConfiguration: found \"B\", expected the name of a configuration of this document"},
    {R"({"configurations": [{"name": "A", "bodies": ["Lid"]}]})",
     "/configurations/0/bodies/0: found \"Lid\", expected the name of a body of this document"},
    {R"({"configurations": [{"name": "A", "explodeSteps": 1.5}]})",
     "/configurations/0/explodeSteps: found 1.5, expected a whole number from -2147483648 to "
     "2147483647"},
    {R"({"configurations": [{"name": "A", "customProperties": [{"type": "Real"}]}]})",
     R"(/configurations/0/customProperties/0/type: found "Real", expected one of "Number", "Double", "YesNo", "Text", "Date")"},
    {R"({"box": [1, 2, 3]})", "/box: found a list of 3, expected a list of 6 numbers"},
    {R"({"bodies": [{"faces": [{}]}]})",
     "/bodies/0/faces/0: found no \"positions\", expected it to be given"},
    {R"({"bodies": [{"faces": [{"positions": [1,2,3,4,5,6,7,8,9,10]}]}]})",
     "/bodies/0/faces/0/positions: found 10 numbers, expected a multiple of 9"},
    {R"({"bodies": [{"faces": [{"positions": [0,0,0,1e39,0,0,0,1,0]}]}]})",
     "/bodies/0/faces/0/positions/3: found 1e+39, expected a number within 32-bit floating point"},
    {R"({"bodies": [{"faces": [{"positions": [0,0,0,1,0,0,0,1,0], "normals": [1,2,3]}]}]})",
     "/bodies/0/faces/0/normals: found 3 numbers, expected 9, 9 a triangle"},
    {R"({"bodies": [{"faces": [{"positions": [0,0,0,1,0,0,0,1,0], "texCoords": [1,2,3]}]}]})",
     "/bodies/0/faces/0/texCoords: found 3 numbers, expected 6, 6 a triangle"},
    {R"({"bodies": [{"faces": [{"positions": [], "feature": "Cut"}]}]})",
     "/bodies/0/faces/0/feature: found \"Cut\", expected the name of a feature of this document"},
    {R"({"bodies": [{"faces": [{"positions": [], "userValue": 4294967296}]}]})",
     "/bodies/0/faces/0/userValue: found 4294967296, expected a whole number from -2147483648 to "
     "4294967295"},
    {R"({"bodies": [{"kind": "sheet"}]})",
     R"(/bodies/0/kind: found "sheet", expected one of "solid", "surface", "wire")"},
    {R"({"bodies": [{"faces": [], "file": "a.stl"}]})",
     R"(/bodies/0: found more than one of "faces", "shape", "file", expected one of them)"},
    {R"({"bodies": [{"file": "b.stl"}]})",
     R"(/bodies/0/file: found "b.stl", which is no file, expected a file that is there)"},
    {R"({"bodies": [{"file": "a.tfgprt"}]})",
     R"(/bodies/0/file: found "a.tfgprt", expected a file that ends in .step, .stp or .stl)"},
    {R"({"bodies": [{"file": ""}]})", R"(/bodies/0/file: found "", expected a file name)"},
    {R"({"bodies": [{"shape": {}}]})", "/bodies/0/shape: found 0 shapes, expected one"},
    {R"({"bodies": [{"shape": {"cylinder": {"radius": 1}}}]})",
     "/bodies/0/shape/cylinder: found no \"height\", expected it to be given"},
    {R"({"bodies": [{"shape": {"box": {"size": [1, 0, 1]}}}]})",
     "/bodies/0/shape/box/size/1: found 0, expected a length above 0"},
    {R"({"bodies": [{"shape": {"sphere": {"radius": -1}}}]})",
     "/bodies/0/shape/sphere/radius: found -1, expected a length above 0"},
    {R"({"bodies": [{"shape": {"sphere": {"radius": 1, "segments": 2}}}]})",
     "/bodies/0/shape/sphere/segments: found 2, expected a whole number from 3 to 1000"},
    {R"({"bodies": [{"shape": {"sphere": {"radius": 1e300}}}]})",
     "/bodies/0/shape: found a shape that reaches beyond 32-bit floating point, expected a smaller "
     "one"},
    {R"({"appearances": [{"primaryColor": "#12345"}]})",
     R"(/appearances/0/primaryColor: found "#12345", expected "#RRGGBB" or three whole numbers from 0 to 255)"},
    {R"({"appearances": [{"primaryColor": "#12345G"}]})",
     R"(/appearances/0/primaryColor: found "#12345G", expected "#RRGGBB" or three whole numbers from 0 to 255)"},
    {R"({"appearances": [{"specularColor": [0, 256, 0]}]})",
     "/appearances/0/specularColor/1: found 256, expected a whole number from 0 to 255"},
    {R"({"appearances": [{"texture": "a\u0000b"}]})",
     R"(/appearances/0/texture: found "a b", expected a file name)"},
    {R"({"appearances": [{"appliedTo": ["part"]}]})",
     R"(/appearances/0/appliedTo/0: found "part", expected "document" or an object with "body", "feature", "face" or "component")"},
    {R"({"appearances": [{"appliedTo": [{}]}]})",
     "/appearances/0/appliedTo/0: found 0 entities, expected one"},
    {R"({"bodies": [{}], "features": [{"name": "F"}], "appearances": [{"appliedTo": [{"body": "Body1", "feature": "F"}]}]})",
     "/appearances/0/appliedTo/0: found 2 entities, expected one"},
    {R"({"appearances": [{"appliedTo": [{"body": "B"}]}]})",
     "/appearances/0/appliedTo/0/body: found \"B\", expected the name of a body of this document"},
    {R"({"appearances": [{"appliedTo": [{"feature": "F"}]}]})",
     "/appearances/0/appliedTo/0/feature: found \"F\", expected the name of a feature of this document"},
    {R"({"bodies": [{"shape": {"box": {"size": [1, 1, 1]}}}], "appearances": [{"appliedTo": [{"face": ["Body1", 6]}]}]})",
     "/appearances/0/appliedTo/0/face/1: found 6, expected the position of one of the body's 6 faces, "
     "from 0"},
    {R"({"appearances": [{"appliedTo": [{"face": ["Body1"]}]}]})",
     "/appearances/0/appliedTo/0/face: found a list of 1, expected the name of a body and a face's "
     "position from 0"},
    {R"({"decals": [{"id": 1, "appearance": {"configurations": ["C"]}}]})",
     "/decals/0/appearance/configurations/0: found \"C\", expected the name of a configuration of this "
     "document"},
    {R"({"decals": [{"id": 1, "appearance": {"displayStates": ["D"]}}]})",
     "/decals/0/appearance/displayStates/0: found \"D\", expected the name of a display state of this "
     "document"},
    {R"({"features": [{"definition": {"seeds": [null, "F"]}}]})",
     "/features/0/definition/seeds/1: found \"F\", expected the name of a feature of this document"},
    {R"({"namedViews": [{"name": "A"}, {}]})", "/namedViews/1: found no \"name\", expected it to be given"},
    {R"({"lights": [{"type": "sun"}]})",
     R"(/lights/0/type: found "sun", expected one of "ambient", "spot", "point", "directional")"},
    {R"({"motionStudies": [{"frameRate": -1}]})",
     "/motionStudies/0/frameRate: found -1, expected a whole number from 0 to 2147483647"},
    {R"({"motionStudies": [{"tracks": [{"interpolation": "spline"}]}]})",
     R"(/motionStudies/0/tracks/0/interpolation: found "spline", expected one of "linear", "step")"},
    {R"({"motionStudies": [{"tracks": [{"keys": [{"time": 1}, {"time": 2}, {"time": 2}]}]}]})",
     "/motionStudies/0/tracks/0/keys/2: found a key that is not later than the one before, expected "
     "keys in ascending time order"},
    {R"({"annotations": [{"table": {"attach": false}}]})",
     R"(/annotations/0/table: found the key "attach", expected one of "title", "headers", "rows")"}};

const Refusal kAssemblyRefusals[] = {
    {R"({"bodies": []})", "found \"bodies\", expected none in an assembly: only parts have it"},
    {R"({"appearances": [{"appliedTo": ["document"]}]})",
     R"(/appearances/0/appliedTo/0: found "document" in an assembly, expected a feature or a component (only a part takes appearances itself))"},
    {R"({"components": [{"name": "a", "document": "mesh.stl"}]})",
     "/components/0/document: found \"mesh.stl\", expected a file that ends in .tfgprt, .tfgasm, .step "
     "or .stp"},
    {R"({"components": [{"document": "part.tfgprt"}]})",
     "/components/0: found no \"name\", expected it to be given"},
    {R"({"components": [{"name": "a/b"}]})",
     "/components/0/name: found \"a/b\", expected a name without \"/\""},
    {R"({"components": [{"name": "a", "document": "../gear.tfgprt"}]})",
     R"(/components/0/document: found "../gear.tfgprt", which is no file, expected a file that is there)"},
    {R"({"components": [{"name": "a", "state": 4}]})",
     "/components/0/state: found 4, expected a whole number from 0 to 3"},
    {R"({"components": [{"name": "a", "id": 2147483648}]})",
     "/components/0/id: found 2147483648, expected a whole number from -2147483648 to 2147483647"},
    {R"({"components": [{"name": "a", "placementFallback": null}]})",
     "/components/0/placementFallback: found null, expected a list of 16 numbers or an object"},
    {R"({"components": [{"name": "a", "placement": [1, 2]}]})",
     "/components/0/placement: found a list of 2, expected a list of 16 numbers"},
    {R"({"components": [{"name": "a", "placement": {"rotate": {"axis": [0, -0.0, 0], "degrees": 5}}}]})",
     "/components/0/placement/rotate/axis: found an axis of length 0, expected a direction"},
    {R"({"components": [{"name": "a", "decals": [{}]}]})",
     "/components/0/decals/0: found no \"id\", expected it to be given"}};

TEST(ModelReaderErrors, ValuesOutOfRangeAndReferencesToNothing) {
    ModelFiles files;
    files.write("mesh.stl", "");
    files.write("part.tfgprt", "{}");
    expectRefusals(files, "a.tfgprt", kPartRefusals);
    expectRefusals(files, "a.tfgasm", kAssemblyRefusals);
    // A document that is mentioned complains under its own name, as it was reached.
    files.write("parts/bad.tfgprt", R"({"view": 1})");
    EXPECT_EQ(files.refusalOf("sub/a.tfgasm",
                              R"({"components": [{"name": "a", "document": "../parts/bad.tfgprt"}]})"),
              "parts/bad.tfgprt: /view: found 1, expected an object");
}

TEST(ModelReaderErrors, EveryPlaceThatNamesAComponent) {
    ModelFiles files;
    const struct {
        std::string head, tail; ///< around the full name
        const char* place;
    } mentions[] = {
        {R"("configurations": [{"name": "A", "suppressed": [)", "]}]", "/configurations/0/suppressed/0"},
        {R"("configurations": [{"name": "A", "hidden": [)", "]}]", "/configurations/0/hidden/0"},
        {R"("configurations": [{"name": "A", "shown": [)", "]}]", "/configurations/0/shown/0"},
        {R"("configurations": [{"name": "A", "placements": {)", ": {}}}]",
         "/configurations/0/placements/top~1leaf~0"},
        {R"("configurations": [{"name": "A", "displayStates": [{"hidden": [)", "]}]}]",
         "/configurations/0/displayStates/0/hidden/0"},
        {R"("configurations": [{"name": "A", "displayStates": [{"shown": [)", "]}]}]",
         "/configurations/0/displayStates/0/shown/0"},
        {R"("appearances": [{"appliedTo": [{"component": )", "}]}]", "/appearances/0/appliedTo/0/component"},
        {R"("motionStudies": [{"tracks": [{"component": )", "}]}]", "/motionStudies/0/tracks/0/component"},
        {R"("explodedViews": [{"steps": [{"components": [)", "]}]}]",
         "/explodedViews/0/steps/0/components/0"}};
    for (const auto& [head, tail, place] : mentions) {
        const std::string text = "{" + head + R"("top/leaf~")" + tail + R"(, "components": [{"name": "top")";
        EXPECT_EQ(files.refusalOf("a.tfgasm", text + "}]}"),
                  std::string("a.tfgasm: ") + place +
                      ": found \"top/leaf~\", expected the full name of a component of this document");
        EXPECT_EQ(files.refusalOf("a.tfgasm", text + R"(, "components": [{"name": "leaf~"}]}]})"), "accepted")
            << text;
    }
}

TEST(ModelReaderErrors, MessagesStayShortAndOnOneLine) {
    ModelFiles files;
    const std::string longText = R"(a\n)" + std::string(37, 'x') + "\xC3\xA4" + std::string(5000, 'y');
    EXPECT_EQ(files.refusalOf("a.tfgprt", R"({"box": ")" + longText + R"("})"),
              "a.tfgprt: /box: found \"a " + std::string(37, 'x') + "...\", expected a list of 6 numbers");
    EXPECT_THAT(
        files.refusalOf("a.tfgprt", R"({"view": {")" + longText + R"(": 1}})"),
        StartsWith("a.tfgprt: /view: found the key \"a " + std::string(37, 'x') + "...\", expected one of"));
}

} // namespace
} // namespace orvane
