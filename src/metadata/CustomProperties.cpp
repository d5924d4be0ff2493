#include "metadata/CustomProperties.h"

#include "document/AsciiNames.h"

namespace orvane {

void collectCustomProperties(const HostConfiguration& configuration, GltfScene& scene) {
    const HostRef<HostCustomProperties> manager = configuration.customProperties();
    if (!manager || manager->propertyCount() <= 0) {
        return;
    }
    for (const HostCustomProperty& property : manager->properties()) {
        scene.customProperties.push_back(
            {toAsciiName(property.name), toAsciiName(property.value), property.type});
    }
}

} // namespace orvane
