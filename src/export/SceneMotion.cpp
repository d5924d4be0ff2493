#include "export/SceneMotion.h"

#include "animation/ExplodedViews.h"
#include "animation/StudySampling.h"

namespace orvane::exporter {

namespace {

bool wantsExplodedViews(const ExportContext& context) {
    return context.isAssembly && context.options.exportExplodedViews != 0;
}

} // namespace

void expectMotion(ExportContext& context) {
    if (wantsExplodedViews(context) || context.options.exportAnimations != 0) {
        context.nodeOrigins.emplace();
    }
}

void sampleMotion(ExportContext& context, const HostConfiguration& configuration, GltfScene& scene) {
    if (!context.nodeOrigins) {
        return;
    }
    const NodeNames nodeNames(context.document, scene);
    const MotionScene motion{.host = context.host,
                             .modelDoc = *context.modelDoc,
                             .configuration = configuration,
                             .rootTransform = context.rootTransform,
                             .origins = *context.nodeOrigins,
                             .nodeNames = nodeNames,
                             .document = context.document,
                             .scene = scene,
                             .buffers = {context.meshBuffers.folder, context.meshBuffers.names,
                                         context.report, context.animationFiles}};
    const HostRef<HostAssembly> assembly = context.modelDoc->assemblyInterface();
    if (assembly && wantsExplodedViews(context)) {
        sampleExplodedViews(*assembly, motion);
    }
    if (context.options.exportAnimations != 0) {
        sampleStudies(motion);
    }
    context.nodeOrigins.reset();
}

} // namespace orvane::exporter
