#include "views/Lights.h"

#include "document/AsciiNames.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvane {

namespace {

using Numbers3 = std::array<double, 3>;

Numbers3 cross(const Numbers3& a, const Numbers3& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

/// Nothing for a type that has no counterpart.
std::optional<LightType> exportedType(HostLightType type) {
    switch (type) {
    case HostLightType::spot:
        return LightType::spot;
    case HostLightType::point:
        return LightType::point;
    case HostLightType::directional:
        return LightType::directional;
    }
    return std::nullopt;
}

std::string lightName(const HostModelDoc& modelDoc, std::int32_t number) {
    std::string name = toAsciiName(modelDoc.lightUserName(number));
    return name.empty() ? toAsciiName(modelDoc.lightInternalName(number)) : name;
}

/// Where a spot or directional light shines, of any length, the second number mirrored. A directional light
/// shines from its position to the origin; one that stands there has no direction.
Numbers3 lightDirection(const PackedData& props) {
    if (props.type == HostLightType::spot) {
        return {props.direction[0], -props.direction[1], props.direction[2]};
    }
    const auto& [px, py, pz] = props.position;
    const double n = px * px + py * py + pz * pz;
    double x = 0, y = 0, z = 0;
    if (n > 0.0) {
        const double factor = -1.0 / std::sqrt(n);
        x = px * factor;
        y = py * factor;
        z = pz * factor;
    }
    return {x, -y, z};
}

/// A point light has no rotation block at all, not even the identity. The axes of the others are not
/// normalised, and vanish along (0, 0, 1).
NodeMatrix lightMatrix(const PackedData& props) {
    NodeMatrix matrix{};
    if (props.type != HostLightType::point) {
        const Numbers3 direction = lightDirection(props);
        const Numbers3 side = cross(direction, {0, 0, 1});
        std::ranges::copy(side, matrix.begin());
        std::ranges::copy(cross(direction, side), matrix.begin() + 3);
        std::ranges::copy(direction, matrix.begin() + 6);
    }
    std::ranges::copy(props.position, matrix.begin() + 9);
    matrix[12] = 1.0;
    return matrix;
}

void fillLight(GltfLight& light, LightType type, const PackedData& props) {
    light.type = type;
    light.color = props.color;
    light.spotAngle = type == LightType::spot ? props.coneAngle * 3.141592653589793 / 180.0 : 0.0;
    light.intensity = props.intensity + props.level;
    light.enabled = props.status == 0;
}

} // namespace

void exportLights(HostApplication& host, GltfDocument& document, GltfScene& scene) {
    const HostRef<HostModelDoc> modelDoc = host.activeDocument();
    const std::int32_t numLights = modelDoc ? modelDoc->countLights() : 0;
    for (std::int32_t number = 0; number < numLights; ++number) {
        PackedData props;
        modelDoc->lightProperties(number, props);
        const std::optional<LightType> type = exportedType(props.type);
        if (!type) {
            continue;
        }
        GltfLight& light = addRecord(document.lights);
        GltfNode& node = addRecord(document.nodes);
        node.light = light.index;
        node.name = "LightNode_" + lightName(*modelDoc, number);
        node.matrix = lightMatrix(props);
        scene.nodes.push_back(node.id);
        fillLight(light, *type, props);
    }
}

} // namespace orvane
