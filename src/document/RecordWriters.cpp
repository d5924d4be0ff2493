#include "document/RecordWriters.h"

#include "document/ExtensionWriters.h"
#include "document/NearEquality.h"

#include <string_view>

namespace orvane {

namespace {

bool isIdentity(const NodeMatrix& matrix) {
    for (std::size_t i = 0; i < matrix.size(); ++i) {
        const bool isOne = i == 0 || i == 4 || i == 8 || i == 12;
        if (!isNear(matrix[i], isOne ? 1 : 0)) {
            return false;
        }
    }
    return true;
}

/// The host's sixteen numbers as a column-major 4x4 matrix: the rotation's rows become columns, and the
/// translation the last column.
void writeMatrixNumbers(TextStream& out, const NodeMatrix& matrix) {
    static constexpr std::size_t kOrder[4][4] = {
        {0, 1, 2, 13}, {3, 4, 5, 14}, {6, 7, 8, 15}, {9, 10, 11, 12}};
    for (std::size_t line = 0; line < 4; ++line) {
        for (std::size_t i = 0; i < 4; ++i) {
            const bool isLast = line == 3 && i == 3;
            out << "\t\t\t\t" << matrix[kOrder[line][i]] << (isLast ? "\n" : i == 3 ? ",\n" : ",\t");
        }
    }
}

/// The separator is not reset inside the object: without a light, its first key is led by the comma that the
/// keys before it have left.
void writeNodeExtensions(TextStream& out, const GltfNode& node, std::string_view& sep) {
    out << "\t\t\t" << sep << "\"extensions\" : {\n";
    if (node.light >= 0) {
        out << "\t\t\t\t\"KHR_lights_punctual\" : {\n"
            << "\t\t\t\t\t\"light\" : " << node.light << "\n"
            << "\t\t\t\t}\n";
        sep = ",";
    }
    if (!node.comments.empty()) {
        out << "\t\t\t\t" << sep << "\"Tessaforge_comments\" : {\n";
        writeNodeComments(out, node.comments);
        out << "\t\t\t\t}\n";
    }
    out << "\t\t\t}\n";
    sep = ",";
}

void writePrimitive(TextStream& out, const GltfPrimitive& primitive) {
    out << "\t\t\t\t{\n"
        << "\t\t\t\t\t\"attributes\" : {\n"
        << "\t\t\t\t\t\"POSITION\" : " << primitive.position << ",\n"
        << "\t\t\t\t\t\"NORMAL\" : " << primitive.normal << ",\n"
        << "\t\t\t\t\t\"TEXCOORD_0\" : " << primitive.texcoord << "\n"
        << "\t\t\t\t\t},\n"
        << "\t\t\t\t\t\"indices\" : " << primitive.indices << ",\n"
        << "\t\t\t\t\t\"mode\": 4,\n"
        << "\t\t\t\t\t\"material\" : " << primitive.material << "\n"
        << "\t\t\t\t}";
}

std::string_view typeName(AccessorType type) {
    switch (type) {
    case AccessorType::scalar:
        return "SCALAR";
    case AccessorType::vec2:
        return "VEC2";
    case AccessorType::vec3:
        return "VEC3";
    case AccessorType::vec4:
        return "VEC4";
    }
    return "";
}

std::string_view lightTypeName(LightType type) {
    switch (type) {
    case LightType::spot:
        return "spot";
    case LightType::point:
        return "point";
    case LightType::directional:
        return "directional";
    }
    return "";
}

std::string_view interpolationName(Interpolation interpolation) {
    switch (interpolation) {
    case Interpolation::linear:
        return "LINEAR";
    case Interpolation::step:
        return "STEP";
    case Interpolation::catmullRomSpline:
        return "CATMULLROMSPLINE";
    case Interpolation::cubicSpline:
        return "CUBICSPLINE";
    }
    return "";
}

std::string_view pathName(ChannelPath path) {
    switch (path) {
    case ChannelPath::translation:
        return "translation";
    case ChannelPath::rotation:
        return "rotation";
    case ChannelPath::scale:
        return "scale";
    }
    return "";
}

} // namespace

void writeNode(TextStream& out, const GltfDocument& document, const GltfNode& node) {
    std::string_view sep;
    out << "\t\t{\n";
    if (!node.children.empty()) {
        out << "\t\t\t\"children\": [\n"
            << "\t\t\t\t";
        for (std::size_t i = 0; i < node.children.size(); ++i) {
            out << (i > 0 ? ", " : "") << node.children[i];
        }
        out << "\n"
            << "\t\t\t]\n";
        sep = ",";
    }
    if (!isIdentity(node.matrix)) {
        out << "\t\t\t" << sep << "\"matrix\": [\n";
        writeMatrixNumbers(out, node.matrix);
        out << "\t\t\t]\n";
        sep = ",";
    }
    if (node.mesh >= 0) {
        out << "\t\t\t" << sep << "\"mesh\": " << node.mesh << "\n";
        sep = ",";
    } else if (node.camera >= 0) {
        out << "\t\t\t" << sep << "\"camera\": " << node.camera << "\n";
        sep = ",";
    }
    if (node.light >= 0 || !node.comments.empty()) {
        writeNodeExtensions(out, node, sep);
    }
    out << "\t\t\t" << sep << "\"name\": \"" << node.name << "\"";
    if (node.component) {
        const auto states = document.displayStatesByComponent.find(node.component);
        if (states != document.displayStatesByComponent.end()) {
            out << ",\n"
                << "\t\t\t\"extensions\": {\n"
                << "\t\t\t\t\"TF_display_states\": {\n";
            writeComponentDisplayStates(out, states->second);
            out << "\t\t\t\t}\n"
                << "\t\t\t}\n";
        }
    }
    out << "\t\t}\n";
}

bool isStrictJson(const GltfNode& node) {
    const bool hasKeyBefore =
        !node.children.empty() || !isIdentity(node.matrix) || node.mesh >= 0 || node.camera >= 0;
    return node.comments.empty() || node.light >= 0 || !hasKeyBefore;
}

void writeCamera(TextStream& out, const GltfCamera& camera) {
    out << "\t\t{\n";
    if (camera.isPerspective != 0) {
        out << "\t\t\t\"type\": \"perspective\",\n"
            << "\t\t\t\"perspective\" : {\n"
            << "\t\t\t\t\"aspectRatio\": " << camera.aspectRatio << ",\n"
            << "\t\t\t\t\"yfov\" : " << camera.yfov << ",\n"
            << "\t\t\t\t\"zfar\" : 100,\n"
            << "\t\t\t\t\"znear\" : 0.01\n"
            << "\t\t\t}\n";
    } else {
        out << "\t\t\t\"type\": \"orthographic\",\n"
            << "\t\t\t\"orthographic\" : {\n"
            << "\t\t\t\t\"xmag\": 1,\n"
            << "\t\t\t\t\"ymag\" : 1,\n"
            << "\t\t\t\t\"zfar\" : 100,\n"
            << "\t\t\t\t\"znear\" : 0.01\n"
            << "\t\t\t}\n";
    }
    out << "\t\t}\n";
}

void writeLight(TextStream& out, const GltfLight& light) {
    out << "\t\t\t\t{\n";
    if (light.type != LightType::directional) {
        // All three attenuations carry the intensity: readers of this format expect it there.
        out << "\t\t\t\t\t\"positional\": {\n"
            << "\t\t\t\t\t\t\"constantAttenuation\": " << light.intensity << ",\n"
            << "\t\t\t\t\t\t\"linearAttenuation\": " << light.intensity << ",\n"
            << "\t\t\t\t\t\t\"quadraticAttenuation\": " << light.intensity << "\n"
            << "\t\t\t\t\t},\n";
    }
    out << "\t\t\t\t\t\"color\" : [\n"
        << "\t\t\t\t\t\t" << light.color[0] * light.intensity << ",\n"
        << "\t\t\t\t\t\t" << light.color[1] * light.intensity << ",\n"
        << "\t\t\t\t\t\t" << light.color[2] * light.intensity << "\n"
        << "\t\t\t\t\t],\n"
        << "\t\t\t\t\t\"type\" : \"" << lightTypeName(light.type) << "\"\n"
        << "\t\t\t\t}";
}

void writeAnimation(TextStream& out, const GltfAnimation& animation) {
    const std::size_t count = animation.channels.size();
    out << "\t\t\t\t{\n"
        << "\t\t\t\t\t\"name\" : \"" << animation.name << "\",\n"
        << "\t\t\t\t\t\"samplers\" : [\n";
    for (std::size_t i = 0; i < count; ++i) {
        const GltfAnimationChannel& channel = animation.channels[i];
        out << "\t\t\t\t\t{\n"
            << "\t\t\t\t\t\t\"input\" : " << channel.input << ",\n"
            << "\t\t\t\t\t\t\"interpolation\" : \"" << interpolationName(channel.interpolation) << "\",\n"
            << "\t\t\t\t\t\t\"output\" :" << channel.output << "\n"
            << "\t\t\t\t\t}" << (i + 1 < count ? "," : "") << "\n";
    }
    out << "\t\t\t\t\t],\n"
        << "\t\t\t\t\t\"channels\" : [\n";
    for (std::size_t i = 0; i < count; ++i) {
        const GltfAnimationChannel& channel = animation.channels[i];
        out << "\t\t\t\t\t{\n"
            << "\t\t\t\t\t\t\"sampler\" : " << static_cast<std::int64_t>(i) << ",\n"
            << "\t\t\t\t\t\t\"target\" : {\n"
            << "\t\t\t\t\t\t\t\"node\" : " << channel.node << ",\n"
            << "\t\t\t\t\t\t\t\"path\" : \"" << pathName(channel.path) << "\"\n"
            << "\t\t\t\t\t\t}\n"
            << "\t\t\t\t\t}" << (i + 1 < count ? "," : "") << "\n";
    }
    out << "\t\t\t\t\t]\n"
        << "\t\t\t\t}";
}

void writeMesh(TextStream& out, const GltfMesh& mesh) {
    out << "\t\t{\n"
        << "\t\t\t\"primitives\" : [\n";
    for (std::size_t i = 0; i < mesh.primitives.size(); ++i) {
        writePrimitive(out, mesh.primitives[i]);
        out << (i + 1 < mesh.primitives.size() ? ",\n" : "\n");
    }
    out << "\t\t\t]\n"
        << "\t\t}";
}

void writeAccessor(TextStream& out, const GltfAccessor& accessor) {
    out << "\t\t\t{\n"
        << "\t\t\t\t\"bufferView\": " << accessor.bufferView << "\n"
        << "\t\t\t\t,\"byteOffset\" : " << accessor.byteOffset << "\n"
        << "\t\t\t\t,\"componentType\" : " << static_cast<std::int32_t>(accessor.componentType) << "\n"
        << "\t\t\t\t,\"count\" : " << accessor.count << "\n"
        << "\t\t\t\t,\"type\" : \"" << typeName(accessor.type) << "\"\n";
    if (accessor.bounds) {
        const auto writeThree = [&](std::size_t first) {
            for (std::size_t i = first; i < first + 3; ++i) {
                out << (i > first ? ", " : "");
                out.appendScientific(static_cast<double>((*accessor.bounds)[i]));
            }
        };
        out << "\t\t\t\t,\"min\" : [";
        writeThree(0);
        out << "]\n"
            << "\t\t\t\t,\"max\" : [";
        writeThree(3);
        out << "]\n";
    }
    out << "\t\t\t}";
}

void writeTexture(TextStream& out, GltfDocument& document, const GltfTexture& texture,
                  const PictureCopier& copyPicture) {
    if (texture.source < 0) {
        return;
    }
    GltfImage& image = *document.images[static_cast<std::size_t>(texture.source)];
    if (image.bufferView < 0) {
        if (texture.sampler < 0) {
            return;
        }
        if (texture.isNormalMap) {
            image.name = "n_" + image.name;
        }
        copyPicture(image.sourcePath, image.name, texture.isNormalMap);
        out << "\t\t\t{\n"
            << "\t\t\t\t\"sampler\": " << texture.sampler << ",\n"
            << "\t\t\t\t\"source\": " << texture.source << ",\n"
            << "\t\t\t\t\"name\": \"" << image.name << "\"\n"
            << "\t\t\t}";
        return;
    }
    out << "\t\t\t{\n";
    if (texture.sampler >= 0) {
        out << "\t\t\t\t\"sampler\": " << texture.sampler << ",\n";
    }
    out << "\t\t\t\t\"source\": " << texture.source << "\n"
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

void writeBufferView(TextStream& out, const GltfBufferView& view) {
    out << "\t\t\t{\n"
        << "\t\t\t\t\"buffer\": " << view.buffer << "\n"
        << "\t\t\t\t,\"byteOffset\" : " << view.byteOffset << "\n"
        << "\t\t\t\t,\"byteLength\" : " << view.byteLength << "\n";
    if (view.byteStride > 0) {
        out << "\t\t\t\t,\"byteStride\" : " << view.byteStride << "\n";
    }
    if (view.target != BufferTarget::none) {
        out << "\t\t\t\t,\"target\" : " << static_cast<std::int32_t>(view.target) << "\n";
    }
    out << "\t\t\t}";
}

void writeBuffer(TextStream& out, const GltfBuffer& buffer) {
    out << "\t\t\t{\n"
        << "\t\t\t\t\"byteLength\": " << buffer.byteLength << "\n";
    if (!buffer.uri.empty()) {
        out << "\t\t\t\t,\"uri\" : \"" << buffer.uri << "\"\n";
    }
    out << "\t\t\t}";
}

} // namespace orvane
