#pragma once

#include "document/GltfDocument.h"
#include "document/MeshBuffers.h"
#include "export/ExportOptions.h"
#include "host/HostApplication.h"

#include <string>

namespace orvane {

/// What the steps of one export share.
struct ExportContext {
    HostApplication& host;
    HostRef<HostModelDoc> modelDoc;
    bool isAssembly = false;
    const ExportOptions& options;
    GltfDocument& document;
    ExportReport& report;
    MeshBufferTarget meshBuffers;
    std::u16string title; ///< of the document; the name of a part's node
    HostRef<HostTransform>
        rootTransform; ///< by which every placement below the root is multiplied; one for each scene
};

} // namespace orvane
