#include "export/ComponentTree.h"

#include "document/AsciiNames.h"
#include "geometry/Tessellation.h"

namespace orvane {

namespace {

constexpr std::int16_t kVisibleOnly = -1;

void nameNode(GltfNode& node, const std::u16string& name) {
    node.fullName = toAsciiPath(name);
    node.name = node.fullName.substr(node.fullName.rfind('/') + 1);
}

/// Sets the node's matrix, relative to its parent; gives its placement in the root's space, empty where it
/// has none.
HostRef<HostTransform> placeNode(const ExportContext& context, GltfNode& node, const HostComponent* component,
                                 const ParentNode* parent) {
    const HostRef<HostTransform> placement = component ? placementOf(*component) : HostRef<HostTransform>();
    if (!placement) {
        node.matrix = kIdentityTransform;
        return {};
    }
    HostRef<HostTransform> world = parent ? context.rootTransform->multiply(*placement) : placement;
    HostRef<HostTransform> local = world;
    if (world && parent && parent->world) {
        const HostRef<HostTransform> inverse = parent->world->inverse();
        local = inverse ? world->multiply(*inverse) : HostRef<HostTransform>();
    }
    node.matrix = local ? local->readArray() : kIdentityTransform;
    return world;
}

void buildMesh(ExportContext& context, GltfNode& node, const HostRef<HostComponent>& component,
               const HostRef<HostPart>& part) {
    const HostRef<HostBodyEnumerator> bodies = component
                                                   ? component->enumerateBodies(kSolidBody, kVisibleOnly)
                                                   : part->enumerateBodies(kSolidBody, kVisibleOnly);
    if (!bodies) {
        return;
    }
    context.meshBuffers.folder.settle();
    GeomStreams streams;
    tessellateBodies(*bodies, streams, context.meshBuffers.folder.memory());
    if (!streams.empty()) {
        writeMeshBuffers(context.document, node, streams, context.meshBuffers);
    }
}

} // namespace

HostRef<HostTransform> placementOf(const HostComponent& component) {
    HostRef<HostTransform> placement = component.getPlacement(0);
    return placement ? placement : component.getPlacementFallback();
}

void buildComponentTree(ExportContext& context, const HostRef<HostComponent>& component,
                        const HostRef<HostPart>& part, std::vector<std::int32_t>& nodeList,
                        const ParentNode* parent) {
    if (context.report.hasFailed()) {
        return;
    }
    GltfDocument& document = context.document;
    progressAddTotal(document.progress, 1);

    // The node joins the document before its children, so that a parent has the smaller id.
    GltfNode& node = addRecord(document.nodes);
    nodeList.push_back(node.id);
    node.parent = parent ? parent->id : -1;
    bool hasGeometry = true;
    if (component) {
        const bool isHidden = component->isHidden(0) != 0;
        hasGeometry = component->isLoaded() != 0 && component->isSuppressed() == 0 && !isHidden;
        node.component = component->identity();
        node.visible = !isHidden;
    }
    nameNode(node, component ? component->componentName() : context.title);
    const ParentNode self{node.id, placeNode(context, node, component.get(), parent)};
    if (hasGeometry) {
        buildMesh(context, node, component, part);
    }
    if (component && component->getChildrenCount() > 0) {
        for (const HostRef<HostComponent>& child : component->getChildren()) {
            buildComponentTree(context, child, part, node.children, &self);
        }
    }
    progressAddDone(document.progress, 1);
}

} // namespace orvane
