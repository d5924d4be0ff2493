#include "document/TextureWriters.h"

namespace orvane::document {

void writeTexture(TextStream& out, const GltfDocument& document, const GltfTexture& texture) {
    if (texture.source < 0) {
        return;
    }
    const bool isLoose = document.images[static_cast<std::size_t>(texture.source)]->bufferView < 0;
    if (isLoose && texture.sampler < 0) {
        return;
    }
    out << "\t\t\t{\n";
    if (texture.sampler >= 0) {
        out << "\t\t\t\t\"sampler\": " << texture.sampler << ",\n";
    }
    out << "\t\t\t\t\"source\": " << texture.source;
    if (isLoose) {
        out << ",\n"
            << "\t\t\t\t\"name\": \"" << texture.name << "\"";
    }
    out << "\n"
        << "\t\t\t}";
}

void writeImage(TextStream& out, const GltfImage& image) {
    out << "\t\t\t{\n";
    if (image.bufferView < 0) {
        out << "\t\t\t\t\"uri\": \"" << image.name << "\"\n";
    } else {
        if (!image.mimeType.empty()) {
            out << "\t\t\t\t\"mimeType\": \"" << image.mimeType << "\",\n";
        }
        out << "\t\t\t\t\"bufferView\": " << image.bufferView << "\n";
    }
    out << "\t\t\t}";
}

void writeSampler(TextStream& out, const GltfSampler& sampler) {
    out << "\t\t\t{\n"
        << "\t\t\t\t\"magFilter\": " << sampler.magFilter << ",\n"
        << "\t\t\t\t\"minFilter\" : " << sampler.minFilter << ",\n"
        << "\t\t\t\t\"wrapS\" : " << sampler.wrapS << ",\n"
        << "\t\t\t\t\"wrapT\" : " << sampler.wrapT << ",\n"
        << "\t\t\t\t\"name\": \"DefaultSampler\"\n"
        << "\t\t\t}";
}

} // namespace orvane::document
