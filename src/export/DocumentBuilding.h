#pragma once

#include "document/BufferFolder.h"
#include "document/ExportReport.h"
#include "document/GltfDocument.h"
#include "export/ExportOptions.h"
#include "host/HostApplication.h"

#include <cstdint>
#include <string>

namespace orvane::exporter {

/// What a document is made from.
struct DocumentSource {
    HostApplication& host;
    HostRef<HostModelDoc> modelDoc;
    const ExportOptions& options;
    std::u16string title; ///< of the model; the name of a part's node
};

/// Fills an empty document from the host, buffers going to `folder` as they are made. The host shows one
/// configuration and display state after the other meanwhile, and stands as before afterwards, also where an
/// exception ends the work. Gives the index of the active scene. Faults go to the report.
std::int32_t buildDocument(const DocumentSource& source, BufferFolder& folder, GltfDocument& document,
                           ExportReport& report);

} // namespace orvane::exporter
