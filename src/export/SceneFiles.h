#pragma once

#include "document/ExportReport.h"
#include "document/GltfDocument.h"
#include "document/WorkingBufferFolder.h"
#include "export/ExportTarget.h"

#include <cstdint>

namespace orvane::exporter {

/// Writes a finished document as the `.gltf` file of `target`. The file is written beside its place and put
/// there when it is complete; faults go to the report.
void writeTextScene(GltfDocument& document, std::int32_t activeScene, const ExportTarget& target,
                    ExportReport& report);

/// Merges a finished document's buffers, which wait in `folder`, and writes it as the `.glb` file of
/// `target`, likewise.
void writeBinaryScene(GltfDocument& document, std::int32_t activeScene, WorkingBufferFolder& folder,
                      const ExportTarget& target, ExportReport& report);

} // namespace orvane::exporter
