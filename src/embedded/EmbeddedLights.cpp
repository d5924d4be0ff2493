#include "embedded/EmbeddedLights.h"

namespace orvane::embedded {

PackedData packedLight(const LightRecord& light) {
    PackedData packed;
    packed.type = static_cast<HostLightType>(light.type);
    packed.level = light.level;
    packed.color = light.color;
    packed.position = light.position;
    packed.direction = light.direction;
    packed.coneAngle = light.coneAngle;
    packed.attenuation = light.attenuation;
    packed.intensity = light.intensity;
    packed.status = light.on ? 0 : 1;
    return packed;
}

} // namespace orvane::embedded
