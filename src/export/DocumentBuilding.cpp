#include "export/DocumentBuilding.h"

#include "appearance/MaterialIndex.h"
#include "export/ExportContext.h"
#include "export/SceneLoop.h"
#include "host/PutBack.h"
#include "metadata/Tables.h"
#include "platform/NarrowText.h"
#include "views/ViewStorageList.h"

#include <optional>

namespace orvane::exporter {

namespace {

/// Nothing for no configuration.
std::optional<std::u16string> nameOf(const HostRef<HostConfiguration>& configuration) {
    return configuration ? std::optional(configuration->getConfigurationName()) : std::nullopt;
}

/// All that the host has to show for, views first. The last thing changed is the first to be put back: the
/// configuration, then the view.
std::int32_t buildWhatIsShown(ExportContext& context) {
    HostModelDoc& modelDoc = *context.modelDoc;
    const HostRef<HostView> view = modelDoc.activeView();
    const PutBack viewBack([&] {
        if (view) {
            modelDoc.setActiveView(view);
        }
    });
    const ViewStorageList views({context.host, context.document}, modelDoc,
                                context.options.exportCameras != 0, context.options.exportViews != 0,
                                context.cameraNodes);
    const ConfigurationsToExport configurations = gatherConfigurations(modelDoc);
    const std::optional<std::u16string> shownAtFirst = nameOf(configurations.activeConfiguration);
    const PutBack configurationBack([&] {
        if (shownAtFirst) {
            modelDoc.showConfiguration(*shownAtFirst);
        }
    });
    MaterialIndexFor(context.appearances, {}, {}, true); // the default material, always the first
    buildScenes(context, configurations);
    return configurations.activeIndex;
}

} // namespace

std::int32_t buildDocument(const DocumentSource& source, BufferFolder& folder, GltfDocument& document,
                           ExportReport& report) {
    BufferNames names;
    AppearanceTable appearances({.document = document,
                                 .report = report,
                                 .hostInstallFolder = toSystemNarrow(source.host.hostInstallFolder())});
    ExportContext context{.host = source.host,
                          .modelDoc = source.modelDoc,
                          .isAssembly = source.modelDoc->getDocumentType() == kAssemblyDocument,
                          .options = source.options,
                          .document = document,
                          .report = report,
                          .meshBuffers = {folder, names, report, source.options.limitPrimitiveSize != 0},
                          .appearances = appearances,
                          .title = source.title,
                          .rootTransform = {},
                          .modelBounds = {},
                          .nodeDocuments = {},
                          .cameraNodes = {}};
    const std::int32_t activeScene = buildWhatIsShown(context);
    document.designTable = readDesignTable(*source.modelDoc);
    readGeneralTables(*source.modelDoc, document.generalTables);
    return activeScene;
}

} // namespace orvane::exporter
