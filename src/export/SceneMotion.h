#pragma once

#include "export/ExportContext.h"

namespace orvane::exporter {

/// To be called before a scene's nodes are built: lets the tree walk remember what they are built from, where
/// the options ask for animations.
void expectMotion(ExportContext& context);

/// Samples the exploded views and motion studies that the options ask for, once the scene's nodes are there.
void sampleMotion(ExportContext& context, const HostConfiguration& configuration, GltfScene& scene);

} // namespace orvane::exporter
