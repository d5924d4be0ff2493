// Pictures on their way from the host to the output, seen in whole exports.

#include "support/PaintedModel.h"
#include "support/Pictures.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

const std::string kPngStart = "\x89PNG";

/// A part with one face for each appearance, in order.
struct Textures : testing::Test {
    void paint(const std::string& texture, const std::string& bumpTexture) {
        const auto face = static_cast<std::int32_t>(appearances.size());
        AppearanceRecord& appearance = appearances.emplace_back(painted("", {onFace(0, face)}));
        appearance.file.clear();
        appearance.texture = texture.empty() ? "" : pictures / texture;
        appearance.bumpTexture = bumpTexture.empty() ? "" : pictures / bumpTexture;
    }
    void picture(const std::string& name, const std::string& bytes) {
        std::filesystem::create_directories(std::filesystem::path(pictures / name).parent_path());
        writeFile(pictures / name, bytes);
    }
    void open() {
        ModelBuilder builder;
        std::vector<FaceRecord> faces(appearances.size(), triangleFace());
        builder.part(u"p.tfgprt", std::move(faces)).appearances = appearances;
        run.emplace(builder.take());
    }
    nlohmann::json exported() {
        open();
        return run->json();
    }
    std::string written(const std::string& name) { return readFile(run->folder / ("x/" + name)); }

    /// `base/normal` texture of every material but the default one.
    static std::vector<std::string> texturesOf(const nlohmann::json& gltf) {
        std::vector<std::string> texts;
        for (std::size_t i = 1; i < gltf["materials"].size(); ++i) {
            const auto& material = gltf["materials"][i];
            const auto index = [](const nlohmann::json& holder, const char* key) {
                return holder.contains(key) ? std::to_string(holder[key]["index"].get<int>()) : "-";
            };
            texts.push_back(index(material["pbrMetallicRoughness"], "baseColorTexture") + "/" +
                            index(material, "normalTexture"));
        }
        return texts;
    }
    static std::vector<std::string> urisOf(const nlohmann::json& gltf) {
        std::vector<std::string> uris;
        for (const auto& image : gltf["images"]) {
            uris.push_back(image.value("uri", image.value("mimeType", "")));
        }
        return uris;
    }
    /// The JSON of a `.glb`.
    static nlohmann::json jsonOf(const std::string& glb) {
        return nlohmann::json::parse(glb.substr(20, glb.rfind("}\n") + 2 - 20));
    }

    TemporaryFolder pictures;
    std::vector<AppearanceRecord> appearances;
    std::optional<ExportRun> run;
};

TEST_F(Textures, ShareColourPicturesButNotNormalMaps) {
    picture("a.jpg", jpegPicture("a"));
    picture("n.jpg", jpegPicture("n"));
    paint("a.jpg", "n.jpg"); // textures 0 and 1
    paint("a.jpg", "a.jpg"); // shares 0; a as normal map is texture 2
    paint("", "a.jpg");      // and 3, since 0 stands for the path
    paint("n.jpg", "n.jpg"); // shares 1 for both, though it was made for a normal map
    const nlohmann::json gltf = exported();
    EXPECT_THAT(texturesOf(gltf), ElementsAre("0/1", "0/2", "-/3", "1/1"));
    EXPECT_THAT(urisOf(gltf), ElementsAre("a.jpg", "n_n.jpg", "n_a.jpg", "n_a.jpg"));
    EXPECT_EQ(gltf["samplers"].size(), 4u);
    EXPECT_EQ(written("a.jpg"), jpegPicture("a"));
    EXPECT_EQ(written("n_a.jpg"), jpegPicture("a"));
    EXPECT_THAT(run->exporter.report().warnings, IsEmpty());
}

TEST_F(Textures, BecomePngUnlessTheyAreJpegOrPng) {
    picture("a.DDS", ddsPicture());
    picture("b.bmp", smallBmp());
    picture("d.e.jpg", smallBmp());
    picture("f.JPEG", pngPicture("f"));
    for (const char* name : {"a.DDS", "b.bmp", "d.e.jpg", "f.JPEG"}) {
        paint(name, "");
    }
    const nlohmann::json gltf = exported();
    EXPECT_THAT(urisOf(gltf), ElementsAre("a.png", "b.png", "d.e.png", "f.JPEG"));
    EXPECT_EQ(gltf["textures"][0]["name"], "a.png");
    for (const char* name : {"a.png", "b.png", "d.e.png"}) {
        EXPECT_THAT(written(name), StartsWith(kPngStart)) << name;
    }
    EXPECT_EQ(written("f.JPEG"), pngPicture("f"));
    EXPECT_THAT(run->folder.names("x"), testing::SizeIs(4 + 2)) << "nothing is left over";
    EXPECT_THAT(run->exporter.report().warnings, IsEmpty());
}

TEST_F(Textures, AreNotMadeForPicturesThatAreNotThere) {
    picture("a.png", pngPicture("a"));
    paint("gone.png", "a.png");
    paint("", "gone.dds");
    const nlohmann::json gltf = exported();
    EXPECT_THAT(texturesOf(gltf), ElementsAre("-/0", "-/-"));
    EXPECT_EQ(gltf["materials"][1]["pbrMetallicRoughness"]["baseColorFactor"].dump(), "[1,1,1,1]");
    EXPECT_THAT(run->exporter.report().warnings,
                ElementsAre("the picture " + (pictures / "gone.png") + " is not there",
                            "the picture " + (pictures / "gone.dds") + " is not there"));
}

TEST_F(Textures, ShowTheFirstOfTwoPicturesOfOneName) {
    picture("1/a.png", pngPicture("first"));
    picture("2/a.png", pngPicture("second"));
    paint("1/a.png", "");
    paint("2/a.png", "");
    EXPECT_THAT(urisOf(exported()), ElementsAre("a.png", "a.png"));
    EXPECT_EQ(written("a.png"), pngPicture("first"));
    EXPECT_THAT(run->exporter.report().warnings, ElementsAre(HasSubstr("2/a.png was not copied")));
    EXPECT_THAT(run->run("y.glb"), AllOf(HasSubstr(pngPicture("first")), HasSubstr(pngPicture("second"))));
    EXPECT_THAT(run->exporter.report().warnings, IsEmpty()) << "inside they do not meet";
}

TEST_F(Textures, LeavePicturesOfTheUsersAloneWhetherTheyAreCopiedOrConverted) {
    picture("a.bmp", smallBmp());
    picture("b.jpg", jpegPicture("b"));
    paint("a.bmp", "");
    paint("b.jpg", "");
    open();
    for (const char* name : {"x/a.png", "x/b.jpg"}) {
        std::filesystem::create_directories(run->folder / "x");
        writeFile(run->folder / name, "mine");
    }
    EXPECT_NE(run->run("x.gltf"), "");
    EXPECT_EQ(written("a.png") + written("b.jpg"), "minemine");
    EXPECT_THAT(run->exporter.report().warnings,
                ElementsAre(HasSubstr("another file named a.png is there already"),
                            HasSubstr("another file named b.jpg is there already")));
}

TEST_F(Textures, TellWhichOfTwoConvertedPicturesOfOneNameIsLost) {
    picture("1/a.bmp", smallBmp('\x10'));
    picture("2/a.bmp", smallBmp('\x20'));
    paint("1/a.bmp", "");
    paint("2/a.bmp", "");
    exported();
    EXPECT_THAT(run->exporter.report().warnings,
                ElementsAre(HasSubstr("2/a.bmp is written as a.png in the place of another picture")));
}

TEST_F(Textures, AreWarnedOfWhereStrictReadersRefuseTheNameThatTheyGet) {
    picture("converted.\"dds", ddsPicture());
    picture("5\".png", pngPicture("a"));
    paint("converted.\"dds", "");
    EXPECT_EQ(urisOf(exported())[0], "converted.png");
    EXPECT_THAT(run->exporter.report().warnings, IsEmpty());
    paint("5\".png", "");
    open();
    EXPECT_FALSE(nlohmann::json::accept(run->run("x.gltf")));
    EXPECT_THAT(run->exporter.report().warnings,
                ElementsAre(HasSubstr("a quotation mark in the name of a texture (5\".png)")));
    EXPECT_THAT(urisOf(jsonOf(run->run("y.glb"))), ElementsAre("image/png", "image/png"));
    EXPECT_THAT(run->exporter.report().warnings, IsEmpty()) << "embedded pictures have no name";
}

TEST_F(Textures, AreEmbeddedInABinaryFile) {
    picture("a.jpg", jpegPicture("a"));
    picture("n.dds", ddsPicture());
    paint("a.jpg", "n.dds");
    paint("n.dds", "");
    open();
    const std::string glb = run->run("y.glb");
    const nlohmann::json gltf = jsonOf(glb);
    EXPECT_THAT(urisOf(gltf), ElementsAre("image/jpeg", "image/png"));
    EXPECT_THAT(glb, AllOf(HasSubstr(jpegPicture("a")), HasSubstr(kPngStart)));
    EXPECT_THAT(texturesOf(gltf), ElementsAre("0/1", "1/-"));
    EXPECT_FALSE(gltf["textures"][0].contains("name"));
    EXPECT_THAT(run->folder.names(), ElementsAre("y.glb"));
}

TEST_F(Textures, NeverStopAnExportWhateverTheyHold) {
    const std::vector<std::pair<std::string, std::string>> damaged = {
        {"huge.bmp", bmpPicture(60'000, 60'000, 48)},
        {"huge.dds", ddsPicture(60'000, 60'000)},
        {"huge.tga", std::string("\0\0\2\0\0\0\0\0\0\0\0\0", 12) + "\xFF\xFF\xFF\xFF\x20\x08" + "rest"},
        {"garbage.gif", "GIF89a" + std::string(200, '\xFE')},
        {"cut.png", pngPicture("x").substr(0, 12)},
        {"cut.jpg", jpegPicture("x").substr(0, 3)},
        {"empty.tif", ""},
        {"text.txt", "no picture"},
    };
    for (const auto& [name, bytes] : damaged) {
        picture(name, bytes);
        paint(name, "");
    }
    picture("folder.png/x", "a folder");
    picture("good.bmp", smallBmp());
    paint("good.bmp", "folder.png");
    const nlohmann::json gltf = exported();
    const std::vector<std::string>& warnings = run->exporter.report().warnings;
    EXPECT_EQ(gltf["textures"].size(), damaged.size() + 2);
    EXPECT_EQ(warnings.size(), damaged.size() + 1) << testing::PrintToString(warnings);
    for (const auto& [name, bytes] : damaged) {
        EXPECT_EQ(written(name), bytes) << "passed on as it is";
        EXPECT_THAT(warnings, Contains(HasSubstr(name)));
    }
    EXPECT_THAT(warnings,
                Contains("the picture " + (pictures / "folder.png") + " cannot be copied: is no file"));
    EXPECT_THAT(written("good.png"), StartsWith(kPngStart));
    const std::vector<std::string> uris = urisOf(jsonOf(run->run("y.glb")));
    EXPECT_EQ(run->exporter.report().warnings.size(), damaged.size() + 1);
    EXPECT_THAT(uris, Contains("n_folder.png").Times(1)) << "it stays outside";
    EXPECT_THAT(uris, Contains(StartsWith("image/")).Times(damaged.size() + 1));
}

TEST_F(Textures, AreTakenAsFarAsTheyCanBeReadAndTheReportTells) {
    std::string flipped = pngPicture("flipped");
    flipped[50] ^= 1;
    picture("half.bmp", smallBmp().substr(0, 54 + 24));
    picture("flipped.png", flipped);
    paint("half.bmp", "flipped.png");
    EXPECT_THAT(urisOf(exported()), ElementsAre("half.png", "n_flipped.png"));
    EXPECT_THAT(written("half.png"), StartsWith(kPngStart));
    EXPECT_EQ(written("n_flipped.png"), flipped);
    EXPECT_THAT(
        run->exporter.report().warnings,
        ElementsAre("the picture " + (pictures / "half.bmp") +
                        " is cut short; it is shown as far as it can be read",
                    "the picture " + (pictures / "flipped.png") + " is damaged; it is passed on as it is"));
}

TEST_F(Textures, GetShortNamesWhereTheSystemTakesNoLongerOnes) {
    const std::string longest(251, 'x');
    picture(longest + ".jpg", jpegPicture("long"));
    picture(longest + "yz", smallBmp());
    paint("", longest + ".jpg"); // as a normal map it would get two letters more
    paint(longest + "yz", "");   // and this one the extension of a PNG file
    EXPECT_THAT(urisOf(exported()), ElementsAre("picture-1.jpg", "picture-1.png"));
    EXPECT_EQ(written("picture-1.jpg"), jpegPicture("long"));
    EXPECT_THAT(written("picture-1.png"), StartsWith(kPngStart));
    EXPECT_THAT(run->exporter.report().warnings,
                ElementsAre(HasSubstr("gets a short name"), HasSubstr("gets a short name")));
    EXPECT_THAT(run->run("y.glb"), HasSubstr(jpegPicture("long")));
    EXPECT_THAT(run->exporter.report().warnings, IsEmpty()) << "nobody sees names inside";
}

TEST_F(Textures, LeaveNothingWhenTheExportFailsAndAreTheSameInASecondOne) {
    picture("a.bmp", smallBmp());
    picture("b.jpg", jpegPicture("b"));
    paint("a.bmp", "b.jpg");
    open();
    std::filesystem::create_directories(run->folder / "x/x.gltf/in the way");
    EXPECT_EQ(run->run("x.gltf"), "");
    EXPECT_THAT(run->folder.names("x"), ElementsAre("x.gltf"));
    std::filesystem::remove_all(run->folder / "x");
    const nlohmann::json first = run->json();
    EXPECT_EQ(run->json()["images"], first["images"]);
    EXPECT_THAT(run->exporter.report().warnings, IsEmpty()) << "the same picture is there already";
}

} // namespace
} // namespace orvane
