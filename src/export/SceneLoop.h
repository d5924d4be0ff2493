#pragma once

#include "export/ExportContext.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::exporter {

/// The configurations of a document, in the order of the host's name list.
struct ConfigurationsToExport {
    std::vector<HostRef<HostConfiguration>> configsToExport;
    std::vector<std::u16string> configNames; ///< empty where the host gives no list
    HostRef<HostConfiguration> activeConfiguration;
    std::int32_t activeIndex = 0; ///< of the active one among `configsToExport`
};

ConfigurationsToExport gatherConfigurations(HostModelDoc& modelDoc);

/// Builds one scene for each pair of a configuration and a display state of it. The host is put into each
/// pair, and is left in the last one. A configuration that the host does not show ends the loop with the
/// scenes made so far.
void buildScenes(ExportContext& context, const ConfigurationsToExport& configurations);

} // namespace orvane::exporter
