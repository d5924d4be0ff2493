// What textures and pictures are called, and when a picture is copied, where none is embedded.

#include "document/LoosePictures.h"
#include "document/TextureWriters.h"

#include <gmock/gmock.h>

namespace orvane::document {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct LoosePictures : testing::Test {
    std::int32_t addPicture(const std::string& name) {
        GltfImage& image = addRecord(document.images);
        image.sourcePath = "/lib/" + name;
        image.name = name;
        return image.index;
    }
    GltfTexture& addTexture(std::int32_t picture, bool isNormalMap = false) {
        GltfTexture& texture = addRecord(document.textures);
        texture.source = picture;
        texture.sampler = addRecord(document.samplers).index;
        texture.isNormalMap = isNormalMap;
        return texture;
    }
    /// Settles with a copier that makes `.png` files of `.dds` files, and remembers what it was asked for.
    void settle() {
        settleLoosePictures(document, [&](const std::string& source, std::string& name, bool isNormalMap) {
            asked.push_back(source + " " + name + (isNormalMap ? " normal" : ""));
            if (name.ends_with(".dds")) {
                name.replace(name.size() - 4, 4, ".png");
            }
            return std::string();
        });
    }
    /// The texts of all textures, without tabs and line feeds.
    std::vector<std::string> textureTexts() const {
        std::vector<std::string> texts;
        for (const auto& texture : document.textures) {
            TextStream out;
            writeTexture(out, document, *texture);
            texts.push_back(out.text());
            std::erase_if(texts.back(),
                          [](char character) { return character == '\t' || character == '\n'; });
        }
        return texts;
    }

    GltfDocument document;
    std::vector<std::string> asked;
};

TEST_F(LoosePictures, AreNamedAndCopiedAgainForEachTextureThatSharesThem) {
    const std::int32_t picture = addPicture("bumps.dds");
    addTexture(picture);
    addTexture(picture, true);
    addTexture(picture, true);
    addTexture(picture);
    settle();
    EXPECT_THAT(asked, ElementsAre("/lib/bumps.dds bumps.dds", "/lib/bumps.dds n_bumps.png normal",
                                   "/lib/bumps.dds n_n_bumps.png normal", "/lib/bumps.dds n_n_bumps.png"));
    EXPECT_THAT(textureTexts(), ElementsAre(R"({"sampler": 0,"source": 0,"name": "bumps.png"})",
                                            R"({"sampler": 1,"source": 0,"name": "n_bumps.png"})",
                                            R"({"sampler": 2,"source": 0,"name": "n_n_bumps.png"})",
                                            R"({"sampler": 3,"source": 0,"name": "n_n_bumps.png"})"));
    EXPECT_EQ(document.images[0]->name, "n_n_bumps.png");
}

TEST_F(LoosePictures, AreLeftAloneWithoutSampler) {
    addTexture(-1);
    addTexture(addPicture("a.dds"), true).sampler = -1;
    settle();
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_EQ(document.images[0]->name, "a.dds");
    EXPECT_THAT(textureTexts(), ElementsAre("", ""));
}

TEST_F(LoosePictures, AreNoneOfThoseThatAreEmbedded) {
    const std::int32_t picture = addPicture("a.dds");
    document.images[0]->bufferView = 8;
    document.images[0]->mimeType = "image/png";
    addTexture(picture, true);
    addTexture(picture).sampler = -1;
    settle();
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_THAT(textureTexts(), ElementsAre(R"({"sampler": 0,"source": 0})", R"({"source": 0})"));
}

} // namespace
} // namespace orvane::document
