#include "platform/FileCalls.h"
#include "support/ExportRun.h"

#include <gmock/gmock.h>

#include <map>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

Model smallPart(const std::u16string& title = u"plate.tfgprt") {
    ModelBuilder builder;
    builder.part(title);
    return builder.take();
}

/// Everything around the exporter, written down as it happens.
struct Surroundings : UserPrompts, WaitCursor, LanguageTexts, SettingsStore {
    void showMessage(const std::string& text, const std::string& caption) override {
        events.push_back("message " + caption + ": " + text);
    }
    bool confirm(const std::string& text, const std::string& caption) override {
        events.push_back("question " + caption + ": " + text);
        return answer;
    }
    void show() override { events.push_back("wait"); }
    void restore() override { events.push_back("go on"); }
    std::string text(std::int32_t number) const override { return "text " + std::to_string(number) + ".x"; }
    std::optional<std::uint32_t> read(std::string_view name) override {
        const auto found = stored.find(std::string(name));
        return found == stored.end() ? std::nullopt : std::optional(found->second);
    }
    void write(std::string_view name, std::uint32_t value) override { stored[std::string(name)] = value; }

    bool answer = true;
    std::vector<std::string> events;
    std::map<std::string, std::uint32_t> stored;
};

struct Driver : testing::Test {
    HostRef<HostApplication> host = openEmbeddedHost(smallPart());
    Surroundings around;
    COrvaneExporter exporter{
        {.host = *host, .prompts = &around, .cursor = &around, .texts = &around, .settings = &around}};
    TemporaryFolder folder;

    std::u16string path(const std::string& name) { return fromNarrow(folder / name); }
    static std::u16string fromNarrow(const std::string& text) { return {text.begin(), text.end()}; }
};

TEST_F(Driver, RefusesEveryOtherRevisionOfTheHost) {
    exporter.hostRevision = 27;
    exporter.onSaveAsPart(path("a.glb"));
    EXPECT_THAT(around.events, ElementsAre("message Orvane Exporter: text 125.x"));
    EXPECT_THAT(folder.names(), IsEmpty());
    EXPECT_TRUE(exporter.report().hasFailed());
}

TEST_F(Driver, SavesATextExportInAFolderOfItsOwn) {
    exporter.onSaveAsPart(path("a b.gltf backup.tfgprt"));
    EXPECT_EQ(exporter.report().writtenFile, folder / "a_b/a_b.gltf");
    EXPECT_THAT(folder.names("a_b"), ElementsAre("a_b.gltf", "plate.tfgprt.bin"));
    EXPECT_THAT(around.events, ElementsAre("wait", "go on"));
    EXPECT_TRUE(exporter.request().saveAsPath.empty());
}

TEST_F(Driver, AsksBeforeItReplacesATextExportThatTheHostCouldNotSee) {
    exporter.onSaveAsAssembly(path("a.gltf"));
    writeFile(folder / "a/a.gltf", "before");
    around.events.clear();
    around.answer = false;
    exporter.onSaveAsAssembly(path("a.gltf"));
    EXPECT_THAT(
        around.events,
        ElementsAre("wait", "question Confirm Save As: a.gltf already exists.\nDo you want to replace it?"))
        << "the pointer stays";
    EXPECT_EQ(readFile(folder / "a/a.gltf"), "before");
    EXPECT_EQ(folder.names("a").size(), 2u);

    exporter.setRequest({.exportPath = folder / "b.gltf"});
    exporter.exportActiveDocument();
    EXPECT_EQ(exporter.report().writtenFile, folder / "b/b.gltf")
        << "nothing is left of the declined request";
    EXPECT_EQ(around.events.size(), 4u) << "no further question, and the pointer comes back";
    EXPECT_TRUE(exporter.request().exportPath.empty());
    around.events.clear();

    writeFile(folder / "a.gltf", "the host has asked about this one");
    exporter.onSaveAsAssembly(path("a.gltf"));
    EXPECT_THAT(around.events, ElementsAre("wait", "go on")) << "no further question";
    EXPECT_NE(readFile(folder / "a/a.gltf"), "before");
}

TEST_F(Driver, NamesAnExportWithoutAPathByTheTitleOrWhatStandsForIt) {
    const auto exported = [&](const std::u16string& title, std::int16_t defaultBinary = kSwitchOn) {
        const HostRef<HostApplication> other = openEmbeddedHost(smallPart(title));
        COrvaneExporter named({.host = *other, .texts = &around});
        named.setOptions(
            {.defaultBinary = defaultBinary, .destinationDirectory = fromNarrow(folder.path().string())});
        named.exportActiveDocument();
        return named.report();
    };
    EXPECT_EQ(exported(u"plate.tfgprt").writtenFile, folder / "plate.glb");
    EXPECT_EQ(exported(u"plate.tfgprt", kSwitchOff).writtenFile, folder / "plate/plate.gltf");
    EXPECT_EQ(exported(u"").writtenFile, folder / "text_127.glb");
    EXPECT_THAT(readFile(folder / "text_127.glb"), HasSubstr("\"name\": \"text 127.x\""));
    const ExportReport tooLong = exported(std::u16string(300, u't'));
    EXPECT_EQ(tooLong.writtenFile, folder / "scene.glb");
    EXPECT_THAT(tooLong.warnings, ElementsAre(HasSubstr("the title is no file name")));
}

TEST_F(Driver, KeepsPersistentOptionsInTheStore) {
    EXPECT_EQ(exporter.options().exportLights, 0);
    exporter.setOption(&ExportOptions::exportLights, -1);
    exporter.setOption(&ExportOptions::exportViews, 1);
    exporter.setOption(&ExportOptions::resolveComponents, 0);
    EXPECT_EQ(around.stored,
              (std::map<std::string, std::uint32_t>{{"ExportLights", 0xFFFFFFFF}, {"ExportViews", 1}}));
    const COrvaneExporter next({.host = *host, .settings = &around});
    EXPECT_EQ(next.options().exportLights, -1);
    EXPECT_EQ(next.options().exportViews, 1);
    EXPECT_EQ(next.options().exportCameras, 0);
    EXPECT_NE(next.options().resolveComponents, 0) << "lasts no longer than the process";
}

TEST(ExportTarget, IsWorkedOutFromTheFirstPathGiven) {
    const ExportOptions options{.destinationDirectory = u"D:\\out"};
    const auto describe = [&](const ExportRequest& request, const std::string& title = "a b.c.tfgprt") {
        const ExportTarget target = resolveTarget(request, options, title);
        return target.destinationFolder + " " + target.fileName + " " + target.fileExtension + " " +
               target.file();
    };
    EXPECT_EQ(describe({.saveAsPath = "C:\\m\\a.gltf", .exportPath = "x.glb"}),
              "C:\\m\\a\\ a gltf C:\\m\\a\\a.gltf");
    EXPECT_EQ(describe({.exportPath = "C:\\m/n\\a $1'.x.glb"}), "C:\\m/n\\ a__1_.x glb C:\\m/n\\a__1_.x.glb");
    EXPECT_EQ(describe({.exportPath = "m/a.obj"}), "m\\ a obj m\\a.gltf")
        << "any other extension is text, without a folder";
    EXPECT_EQ(describe({.exportPath = "m/.d/a"}), "m/.d\\ a  m/.d\\a.gltf");
    EXPECT_EQ(describe({}), "D:\\out\\ a_b.c glb D:\\out\\a_b.c.glb");
    EXPECT_EQ(describe({}, "untitled"), "D:\\out\\ untitled glb D:\\out\\untitled.glb");
    EXPECT_THAT(describe({.exportPath = "a.glb"}),
                HasSubstr(std::filesystem::current_path().string() + "\\ a glb"));
}

TEST(CutAfterExtension, TakesTheLastWholeSuffixInLowerCase) {
    EXPECT_EQ(cutAfterExtension("C:\\M\\A.GLTF.tfgprt", "gltf"), "c:\\m\\a.gltf");
    EXPECT_EQ(cutAfterExtension("a.gltf.b.gltf.x", "gltf"), "a.gltf.b.gltf");
    EXPECT_EQ(cutAfterExtension("a.glb", "gltf"), "");
    EXPECT_EQ(cutAfterExtension("agltf", "gltf"), "");
}

TEST(Export, PutsTheTextExportsBytesIntoTheBinaryOne) {
    ModelBuilder builder;
    ModelDocument& assembly = builder.assembly(u"top.tfgasm");
    ModelDocument& part = builder.part(u"p.tfgprt", {triangleFaces(3), triangleFace(-2)});
    assembly.components = {ModelBuilder::component(u"a", &part), ModelBuilder::component(u"a", &part)};
    ExportRun run(builder.take());
    const std::string glb = run.run("x.glb");
    const nlohmann::json gltf = run.json();
    const nlohmann::json inside = nlohmann::json::parse(glb.substr(20, glb.rfind("}\n") + 2 - 20));
    const std::string binary = readFile(run.folder / "x/a.bin") + readFile(run.folder / "x/a-1.bin");
    EXPECT_TRUE(glb.ends_with(binary));
    EXPECT_EQ(inside["buffers"].dump(), "[{\"byteLength\":" + std::to_string(binary.size()) + "}]");
    EXPECT_EQ(inside["bufferViews"][4]["byteOffset"], gltf["buffers"][0]["byteLength"]);
    EXPECT_EQ(inside["meshes"], gltf["meshes"]);
    EXPECT_EQ(run.run("x.glb"), glb) << "nothing is left of the exports before";
    EXPECT_EQ(run.folder.names(), (std::set<std::string>{"x", "x.glb"}));
}

TEST(Export, TouchesNoFileOfTheUsersButTheTarget) {
    ExportRun run(smallPart());
    const std::set<std::string> before = {"plate.tfgprt.bin", "temp.bin", "x.glb"};
    for (const std::string& name : before) {
        writeFile(run.folder / name, "mine");
    }
    run.run("x.glb");
    EXPECT_EQ(run.folder.names(), before);
    EXPECT_EQ(readFile(run.folder / "temp.bin"), "mine");
    EXPECT_EQ(readFile(run.folder / "plate.tfgprt.bin"), "mine");

    run.run("x.gltf");
    run.run("x.gltf");
    EXPECT_THAT(run.folder.names("x"), ElementsAre("plate.tfgprt-1.bin", "plate.tfgprt.bin", "x.gltf"))
        << "a buffer of an earlier export stays, and the new one takes another name";
}

TEST(Export, TakesNoNameThatIsTakenByWhatCannotBeOpened) {
    ExportRun run(smallPart());
    std::filesystem::create_directory(run.folder / "x");
    std::filesystem::create_symlink("../nowhere", run.folder / "x/plate.tfgprt.bin");
    EXPECT_EQ(run.json()["buffers"][0]["uri"], "plate.tfgprt-1.bin");
    EXPECT_EQ(run.folder.names(), std::set<std::string>{"x"}) << "nothing was written through the link";
}

TEST(Export, ReplacesNothingThatAppearsMeanwhileUnlessItMay) {
    static std::string target;
    for (const char* name : {"x.glb", "y.gltf"}) {
        ExportRun run(smallPart());
        target = run.folder / (std::string(name) == "x.glb" ? "x.glb" : "y/y.gltf");
        run.exporter.setRequest({.exportPath = run.folder / name, .mayReplace = false});
        platform::fileCallListener = [](platform::FileCall call) {
            if (call == platform::FileCall::write) {
                writeFile(target, "of another program");
            }
            return platform::FileFault::none;
        };
        run.exporter.exportActiveDocument();
        platform::fileCallListener = nullptr;
        EXPECT_THAT(run.exporter.report().errors,
                    ElementsAre(target + " has been made by another program meanwhile, and stays as it is"));
        EXPECT_EQ(readFile(target), "of another program");
        EXPECT_EQ(std::filesystem::exists(run.folder / "y/plate.tfgprt.bin"), false);
        run.exporter.setRequest({.exportPath = run.folder / name, .mayReplace = false});
        run.exporter.exportActiveDocument();
        EXPECT_THAT(run.exporter.report().errors, ElementsAre(target + " already exists"));
    }
}

TEST(Export, TellsWhatWentWrongAndLeavesNoHalfWrittenTarget) {
    const auto fault = [](ExportRun& run, const std::string& name) {
        EXPECT_EQ(run.run(name), "");
        return run.exporter.report().errors.empty() ? "" : run.exporter.report().errors.front();
    };
    ExportRun run(smallPart());
    EXPECT_THAT(fault(run, std::string(300, 'n') + ".glb"),
                HasSubstr("is longer than 255 bytes; choose a shorter one"));
    EXPECT_THAT(fault(run, "no/such/x.glb"), HasSubstr("cannot be made: No such file or directory"));
    std::filesystem::create_directory(run.folder / "taken.glb");
    EXPECT_THAT(fault(run, "taken.glb"), HasSubstr("taken.glb cannot be put in its place: Is a directory"));
    EXPECT_EQ(run.folder.names(), std::set<std::string>{"taken.glb"});
}

} // namespace
} // namespace orvane
