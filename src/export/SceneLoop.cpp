#include "export/SceneLoop.h"

#include "appearance/Decals.h"
#include "appearance/GatherAppearances.h"
#include "document/AsciiNames.h"
#include "export/ComponentStates.h"
#include "export/ComponentTree.h"
#include "export/SceneMotion.h"
#include "metadata/CustomProperties.h"
#include "views/Lights.h"

#include <optional>

namespace orvane::exporter {

namespace {

/// The root's own placement, or the identity; empty when the host can make no transform.
HostRef<HostTransform> rootTransformOf(HostApplication& host, const HostComponent& root) {
    if (HostRef<HostTransform> placement = placementOf(root)) {
        return placement;
    }
    const HostRef<HostMathUtility> math = host.mathUtility();
    return math ? math->createTransform(kIdentityTransform) : HostRef<HostTransform>();
}

void buildPartNodes(ExportContext& context, const HostConfiguration& configuration, GltfScene& scene) {
    if (const HostRef<HostPart> part = context.modelDoc->partInterface()) {
        gatherAppearances(context.host, context.appearances);
        collectCustomProperties(configuration, scene);
        buildComponentTree(context, {}, part, scene.nodes, nullptr);
        collectSceneComments(context.document, scene.nodes, context.nodeDocuments);
        sampleMotion(context, configuration, scene);
    }
}

void buildAssemblyNodes(ExportContext& context, const HostConfiguration& configuration, GltfScene& scene) {
    const HostRef<HostComponent> root = configuration.getRootComponent();
    if (!root) {
        return;
    }
    std::optional<ComponentStateList> states;
    if (context.options.resolveComponents != 0) {
        states.emplace(root);
        setStates(root, kComponentFullyResolved);
    }
    context.rootTransform = rootTransformOf(context.host, *root);
    scene.nodes = context.cameraNodes;
    if (context.rootTransform) {
        gatherAppearances(context.host, context.appearances);
        CollectDecals(context.appearances.source(), *context.modelDoc, root);
        collectCustomProperties(configuration, scene);
        buildComponentTree(context, root, {}, scene.nodes, nullptr);
        collectSceneComments(context.document, scene.nodes, context.nodeDocuments);
        sampleMotion(context, configuration, scene);
        // The next scene gathers afresh: another display state may give other appearances.
        context.appearances.Clear(true);
    }
}

/// `config` is what all scenes of the configuration have in common.
void buildScene(ExportContext& context, HostConfiguration& configuration, const GltfScene& config,
                std::size_t state) {
    configuration.applyDisplayState(config.displayStateNames[state]);
    context.modelBounds.reset();
    context.nodeDocuments.clear();
    expectMotion(context);
    GltfScene scene = config;
    scene.name = config.name + " - " + config.displayStates[state];
    if (context.isAssembly) {
        buildAssemblyNodes(context, configuration, scene);
    } else {
        buildPartNodes(context, configuration, scene);
    }
    if (context.options.exportLights != 0) {
        exportLights(context.host, context.document, scene);
    }
    context.document.scenes.push_back(std::move(scene));
}

enum class LoopStep { goOn, end };

LoopStep buildConfiguration(ExportContext& context, const ConfigurationsToExport& configurations,
                            std::size_t position) {
    const HostRef<HostConfiguration>& wanted = configurations.configsToExport[position];
    const bool hasName = position < configurations.configNames.size();
    HostRef<HostConfiguration> shown = context.modelDoc->getActiveConfiguration();
    if (!shown) {
        return LoopStep::goOn;
    }
    if (wanted && !(shown == wanted) && hasName) {
        if (!context.modelDoc->showConfiguration(configurations.configNames[position])) {
            return LoopStep::end;
        }
        shown = wanted;
    }
    GltfScene config;
    config.name = hasName ? toAsciiName(configurations.configNames[position]) : "default";
    if (context.modelDoc->extension()) {
        config.displayStateNames = shown->getDisplayStateNames();
        for (const std::u16string& name : config.displayStateNames) {
            config.displayStates.push_back(toAsciiName(name));
        }
    }
    for (std::size_t state = 0; state < config.displayStates.size() && !context.report.hasFailed(); ++state) {
        buildScene(context, *shown, config, state);
    }
    return LoopStep::goOn;
}

} // namespace

ConfigurationsToExport gatherConfigurations(HostModelDoc& modelDoc) {
    ConfigurationsToExport gathered;
    gathered.activeConfiguration = modelDoc.getActiveConfiguration();
    if (modelDoc.getConfigurationCount()) {
        gathered.configNames = modelDoc.getConfigurationNames();
        for (const std::u16string& name : gathered.configNames) {
            HostRef<HostConfiguration> configuration = modelDoc.getConfigurationByName(name);
            if (!configuration) {
                continue;
            }
            if (configuration == gathered.activeConfiguration) {
                gathered.activeIndex = static_cast<std::int32_t>(gathered.configsToExport.size());
            }
            gathered.configsToExport.push_back(std::move(configuration));
        }
    }
    if (gathered.configsToExport.empty()) {
        gathered.configsToExport.push_back(gathered.activeConfiguration);
    }
    return gathered;
}

void buildScenes(ExportContext& context, const ConfigurationsToExport& configurations) {
    Progress& progress = context.document.progress;
    progressAddTotal(progress, static_cast<std::int32_t>(configurations.configsToExport.size()));
    for (std::size_t i = 0; i < configurations.configsToExport.size() && !context.report.hasFailed(); ++i) {
        if (buildConfiguration(context, configurations, i) == LoopStep::end) {
            return;
        }
        progressAddDone(progress, 1);
    }
}

} // namespace orvane::exporter
