// What textures and pictures are called, and when a picture is copied, where none is embedded.

#include "document/LoosePictures.h"
#include "document/TextureWriters.h"

#include <gmock/gmock.h>

namespace orvane::document {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct LoosePictures : testing::Test {
    GltfImage& addPicture(const std::string& name) {
        GltfImage& image = addRecord(document.images);
        image.sourcePath = "/lib/" + name;
        image.name = name;
        return image;
    }
    GltfTexture& addTexture(std::int32_t picture, bool isNormalMap = false) {
        GltfTexture& texture = addRecord(document.textures);
        texture.source = picture;
        texture.sampler = addRecord(document.samplers).index;
        texture.isNormalMap = isNormalMap;
        return texture;
    }
    /// Settles with a copier that makes `.png` files of `.dds` files, and remembers what it was asked for.
    /// Gives the texts of all textures, without tabs and line feeds.
    std::vector<std::string> settledTexts() {
        settleLoosePictures(document, [&](const std::string& source, std::string& name, bool isNormalMap) {
            asked.push_back(source + " " + name + (isNormalMap ? " normal" : ""));
            name.replace(name.size() - 4, 4, ".png");
        });
        std::vector<std::string> texts;
        for (const auto& texture : document.textures) {
            TextStream out;
            writeTexture(out, document, *texture);
            texts.push_back(out.text());
            std::erase_if(texts.back(), [](char c) { return c == '\t' || c == '\n'; });
        }
        return texts;
    }

    GltfDocument document;
    std::vector<std::string> asked;
};

TEST_F(LoosePictures, AreNamedAndCopiedAgainForEachTextureThatSharesThem) {
    addPicture("bumps.dds");
    for (const bool isNormalMap : {false, true, true, false}) {
        addTexture(0, isNormalMap);
    }
    EXPECT_THAT(settledTexts(), ElementsAre(R"({"sampler": 0,"source": 0,"name": "bumps.png"})",
                                            R"({"sampler": 1,"source": 0,"name": "n_bumps.png"})",
                                            R"({"sampler": 2,"source": 0,"name": "n_n_bumps.png"})",
                                            R"({"sampler": 3,"source": 0,"name": "n_n_bumps.png"})"));
    EXPECT_THAT(asked, ElementsAre("/lib/bumps.dds bumps.dds", "/lib/bumps.dds n_bumps.png normal",
                                   "/lib/bumps.dds n_n_bumps.png normal", "/lib/bumps.dds n_n_bumps.png"));
    EXPECT_EQ(document.images[0]->name, "n_n_bumps.png");
}

TEST_F(LoosePictures, AreNeitherThoseWithoutSamplerNorThoseThatAreEmbedded) {
    addPicture("loose.dds");
    addPicture("embedded.dds").bufferView = 8;
    addTexture(-1);
    addTexture(0, true).sampler = -1;
    addTexture(1, true);
    addTexture(1).sampler = -1;
    EXPECT_THAT(settledTexts(), ElementsAre("", "", R"({"sampler": 2,"source": 1})", R"({"source": 1})"));
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_EQ(document.images[0]->name, "loose.dds");
}

} // namespace
} // namespace orvane::document
