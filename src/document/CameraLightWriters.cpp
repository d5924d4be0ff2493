#include "document/CameraLightWriters.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace orvane::document {

namespace {

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

} // namespace

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
        // All three attenuations carry the intensity (docs/output-format.md, "Lights").
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

bool hasFiniteNumbers(const GltfCamera& camera) {
    return camera.index < 0 || camera.isPerspective == 0 ||
           (std::isfinite(camera.aspectRatio) && std::isfinite(camera.yfov));
}

bool hasFiniteNumbers(const GltfLight& light) {
    const auto isFinite = [&](double part) { return std::isfinite(part * light.intensity); };
    return std::ranges::all_of(light.color, isFinite) &&
           (light.type == LightType::directional || std::isfinite(light.intensity));
}

} // namespace orvane::document
