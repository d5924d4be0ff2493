#include "document/LoosePictures.h"

namespace orvane {

void settleLoosePictures(GltfDocument& document, const PictureCopier& copyPicture) {
    for (const auto& texture : document.textures) {
        if (texture->source < 0 || texture->sampler < 0) {
            continue; // not written
        }
        GltfImage& image = *document.images[static_cast<std::size_t>(texture->source)];
        if (image.bufferView >= 0) {
            continue;
        }
        if (texture->isNormalMap) {
            image.name = "n_" + image.name;
        }
        copyPicture(image.sourcePath, image.name, texture->isNormalMap);
        texture->name = image.name;
    }
}

} // namespace orvane
