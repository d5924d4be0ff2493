#include "appearance/AppearanceReading.h"

#include "appearance/AppearanceTable.h"
#include "appearance/MaterialIndex.h"
#include "embedded/EmbeddedHost.h"
#include "support/ModelBuilder.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace orvane::appearance {
namespace {

using testing::EndsWith;
using testing::IsEmpty;

/// A material's own properties, which model documents do not have.
class GivenProperties : public HostMaterialProperties {
public:
    explicit GivenProperties(const MaterialPropertyValues& given) : values(given) {}
    MaterialPropertyValues readValues() const override { return values; }
    MaterialPropertyValues values;
};

/// Reads appearances of the embedded host.
struct AppearanceReading : testing::Test {
    HostRef<HostAppearance> appearance(const AppearanceRecord& record) {
        ModelBuilder builder;
        ModelDocument& part = builder.part(u"p.tfgprt");
        part.appearances = {record};
        hosts.push_back(openEmbeddedHost(builder.take()));
        return hosts.back()->activeDocument()->appearances().front();
    }
    const GltfMaterial& read(const AppearanceRecord& record) {
        return readAppearance(source, appearance(record).get());
    }
    /// An appearance file of that name with this text.
    AppearanceRecord withFile(const std::string& name, const std::string& text) {
        writeFile(folder / name, text);
        return {.file = folder / name};
    }

    TemporaryFolder folder;
    GltfDocument document;
    ExportReport report;
    MaterialSource source{.document = document, .report = report, .hostInstallFolder = "host"};
    std::vector<HostRef<HostApplication>> hosts;
};

TEST_F(AppearanceReading, TakesNamesFromTheFile) {
    const std::pair<const char*, const char*> names[] = {
        {"/a/my steel.v2.tfm", "my steel.v2"},
        {"/a/my steel.v2.tfm", "my steel.v2-1"},
        {"/b/my steel.v2-1.tfm", "my steel.v2-1-1"}, // taken by the second
        {"/b/my steel.v2.other", "my steel.v2-2"},
        {"/b.c/plain", "plain"},
        {"/b/Gr\xC3\xBCn.tfm", "Gr\xC3\xBCn"},
        {"", ""},
        {"", "-1"},
    };
    for (const auto& [file, name] : names) {
        EXPECT_EQ(read({.file = file}).mname, name);
    }
    EXPECT_THAT(report.warnings, testing::Contains("the appearance file /b.c/plain cannot be read"));
}

TEST_F(AppearanceReading, LetsOnlyLampsGlow) {
    const std::pair<const char*, double> emissions[] = {
        {"/Neon Tube.tfm", 2}, {"/xLEDx.tfm", 2}, {"/led.tfm", 0}, {"/Light/steel.tfm", 0}};
    for (const auto& [file, emission] : emissions) {
        EXPECT_EQ(read({.file = file, .emission = 2}).a_emission, emission) << file;
    }
    EXPECT_EQ(read({.file = "/steel.tfm", .emission = -1}).a_emission, -1);
}

TEST_F(AppearanceReading, PutsTheFileOverTheHostsValues) {
    AppearanceRecord record = withFile(
        "dark.tfm", "\"tf_shader\" polishedbrass\n\"col1\" 0.2,0.9,0.9\n\"bumpTexture\" \"a/b.dds\"");
    record.primaryColor = 0xFF000000;
    record.bumpTexture = "/own.png";
    const GltfMaterial& material = read(record);
    EXPECT_EQ(material.tf_shader, "polishedbrass");
    EXPECT_EQ(material.shaderClass, 4);
    EXPECT_EQ(material.primaryColor, 0x333333u);
    EXPECT_EQ(material.bumpTextureFileName, "host\\data\\a\\b.dds");
    record.primaryColor = 0x010000;
    EXPECT_EQ(read(record).primaryColor, 0x010000u) << "only black takes the colour of the file";
    EXPECT_EQ(read(withFile("none.tfm", "\"col1\" 0,1,1")).primaryColor, 0x7F7F7Fu);
    EXPECT_THAT(report.warnings, IsEmpty());
}

TEST_F(AppearanceReading, LooksForPicturesOfTheLibrary) {
    const GltfMaterial& oak = read(withFile("Old Oak.tfm", "x"));
    EXPECT_THAT(oak.textureFileName, EndsWith("\\textures\\organic\\wood\\oak\\polished oak.jpg"));
    EXPECT_EQ(oak.primaryColor, 0xFFFFFFu) << "white, although the picture is not there";
    AppearanceRecord own = withFile("satin oak.tfm", "\"bumpTexture\" \"b.dds\"");
    own.texture = "/mine.jpg";
    const GltfMaterial& material = read(own);
    EXPECT_EQ(material.textureFileName, "\\mine.jpg");
    EXPECT_EQ(material.bumpTextureFileName, "host\\data\\b.dds") << "goes before the finish of the name";
}

TEST_F(AppearanceReading, NarrowsTheMapping) {
    const GltfMaterial& material = read({.mapping = {.center = {0.1, 0.2, 2}, .mirrorHorizontal = true}});
    EXPECT_EQ(material.cy, 0.2f);
    EXPECT_EQ(material.cz, 2.0f);
    EXPECT_TRUE(material.MirrorHorizontal && !material.MirrorVertical);
}

TEST_F(AppearanceReading, PutsMaterialPropertiesOverTheAppearance) {
    GltfMaterial material;
    material.primaryColor = 0xAA000000;
    AssignMaterialProperties(material, nullptr);
    EXPECT_EQ(material.primaryColor, 0xAA000000u);
    const auto assign = [&](const MaterialPropertyValues& values) {
        AssignMaterialProperties(material, makeHostObject<GivenProperties>(values).get());
    };
    assign({.blurry = 1, .l_primaryColor = 0x112233, .a_emission = 3, .a_specularSpread = 0.25});
    EXPECT_FALSE(material.blurry) << "only all bits count";
    EXPECT_EQ(material.primaryColor, 0x112233u);
    EXPECT_EQ(material.a_emission, 3);
    EXPECT_EQ(material.a_specularSpread, 0.25);
    assign({.blurry = -1, .l_primaryColor = 0x445566});
    EXPECT_TRUE(material.blurry);
    EXPECT_EQ(material.primaryColor, 0x112233u) << "only black is replaced";
    material.primaryColor = 0;
    material.textureFileName = "x";
    assign({.l_primaryColor = 0x445566});
    EXPECT_EQ(material.primaryColor, 0u) << "a picture keeps its colour";
}

TEST_F(AppearanceReading, FindsTheIndexOfAPairOrMakesOne) {
    AppearanceTable table(source);
    const HostRef<HostAppearance> red = appearance({.primaryColor = 0xFF});
    const auto properties = makeHostObject<GivenProperties>(MaterialPropertyValues{.a_transparency = 0.5});
    EXPECT_EQ(MaterialIndexFor(table, {}, {}, false), -1);
    EXPECT_EQ(MaterialIndexFor(table, {}, {}, true), 0);
    EXPECT_EQ(MaterialIndexFor(table, {}, {}, true), 0);
    EXPECT_EQ(MaterialIndexFor(table, {}, red, false), 1);
    EXPECT_EQ(MaterialIndexFor(table, properties, red, false), 2);
    EXPECT_EQ(MaterialIndexFor(table, {}, red, false), 1);
    EXPECT_EQ(document.materials[2]->a_transparency, 0.5);
    EXPECT_EQ(table.Find(red), document.materials[2]) << "the latest stands for the appearance";
    EXPECT_EQ(&table.FindOrCreate(red), document.materials[2]);
    table.Clear(false);
    EXPECT_EQ(table.Find(red), document.materials[2]);
    table.Clear(true);
    EXPECT_EQ(table.Find(red), nullptr);
    EXPECT_EQ(document.materials.size(), 3u);
}

TEST_F(AppearanceReading, TellsKindsOfEntitiesApart) {
    AppearanceTable table(source);
    GltfMaterial materials[5];
    const auto kindOf = [](std::size_t i) { return static_cast<AppearanceKind>(i); };
    for (std::size_t i = 0; i < 5; ++i) {
        table.Register(kindOf(i), u"7", materials[i]);
        table.Register(kindOf(i), 7, materials[i]);
    }
    for (const bool isThere : {true, false}) {
        for (std::size_t i = 0; i < 5; ++i) {
            GltfMaterial* const expected = isThere ? &materials[i] : nullptr;
            const bool isFace = kindOf(i) == AppearanceKind::face;
            EXPECT_EQ(table.Find(kindOf(i), u"7"), isFace ? nullptr : expected) << i;
            EXPECT_EQ(table.Find(kindOf(i), 7), isFace ? expected : nullptr) << i;
        }
        table.Clear(false);
    }
}

} // namespace
} // namespace orvane::appearance
