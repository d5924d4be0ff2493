#include "document/MeshWriters.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace orvane::document {

namespace {

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

} // namespace

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

bool hasFiniteNumbers(const GltfAccessor& accessor) {
    return !accessor.bounds ||
           std::ranges::all_of(*accessor.bounds, [](float bound) { return std::isfinite(bound); });
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

} // namespace orvane::document
