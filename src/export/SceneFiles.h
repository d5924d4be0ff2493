#pragma once

#include "document/ExportReport.h"
#include "document/GltfDocument.h"
#include "document/WorkingBufferFolder.h"
#include "platform/StagedFolder.h"

#include <cstdint>
#include <string>

namespace orvane::exporter {

/// The file that a scene is written as.
struct SceneFile {
    std::string name;
    Existing existing; ///< what becomes of one that is there already
};

/// Writes a finished document as a `.gltf` file beside its buffers, which wait in `staged`, and gives all of
/// them their names. Faults go to the report; then there is no result, and the folder is as it was.
void writeTextScene(GltfDocument& document, std::int32_t activeScene, const SceneFile& scene,
                    StagedFolder& staged, ExportReport& report);

/// Merges a finished document's buffers, which wait in `folder`, and writes it as a `.glb` file into
/// `staged`, likewise.
void writeBinaryScene(GltfDocument& document, std::int32_t activeScene, const SceneFile& scene,
                      WorkingBufferFolder& folder, StagedFolder& staged, ExportReport& report);

} // namespace orvane::exporter
