#include "geometry/DocumentBoundingBox.h"

namespace orvane {

namespace {

constexpr std::int16_t kVisibleOnly = -1;

std::optional<HostBox> boxOf(HostModelDoc& document) {
    if (const HostRef<HostAssembly> assembly = document.assemblyInterface()) {
        return assembly->assemblyBox();
    }
    const HostRef<HostPart> part = document.partInterface();
    return part ? part->partBox(kVisibleOnly) : std::nullopt;
}

} // namespace

ModelBounds documentBoundingBox(HostApplication& host) {
    const HostRef<HostModelDoc> document = host.activeDocument();
    const std::optional<HostBox> box = document ? boxOf(*document) : std::nullopt;
    return box ? makeModelBounds(*box) : ModelBounds{};
}

} // namespace orvane
