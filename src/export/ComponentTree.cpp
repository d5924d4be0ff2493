#include "export/ComponentTree.h"

#include "appearance/NodeMaterials.h"
#include "appearance/Textures.h"
#include "document/AsciiNames.h"
#include "geometry/DocumentBoundingBox.h"
#include "geometry/Tessellation.h"

namespace orvane::exporter {

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

GltfMaterial* componentMaterial(const ExportContext& context, const HostRef<HostComponent>& component,
                                const ParentNode* parent) {
    GltfMaterial* const own =
        component ? context.appearances.Find(AppearanceKind::component, component->componentName()) : nullptr;
    return own || !parent ? own : parent->material;
}

HostRef<HostModelDoc> documentOf(const HostRef<HostComponent>& component, const HostRef<HostPart>& part) {
    return component ? shownDocument(*component) : part->getModelDoc();
}

/// The box of the document in front, asked for once in a scene.
const ModelBounds& modelBounds(ExportContext& context) {
    if (!context.modelBounds) {
        context.modelBounds = documentBoundingBox(context.host);
    }
    return *context.modelBounds;
}

/// Every material that a face of the node takes knows the decals of the node's component.
void addDecals(GltfDocument& document, GeomStreams& streams, const HostComponent& component) {
    const auto decals = document.componentDecals.find(component.getComponentId());
    if (decals == document.componentDecals.end()) {
        return;
    }
    for (auto& [material, stream] : streams) {
        for (const std::int32_t decal : decals->second) {
            if (material) {
                material->decals.add(decal);
            }
        }
    }
}

/// Materials get their indices in the order in which primitives come to use them.
void registerMaterials(ExportContext& context, const GeomStreams& streams) {
    for (const auto& [material, stream] : streams) {
        if (material && stream.triangleCount() > 0) {
            registerWithTextures(context.document, *material, context.report);
        }
    }
}

/// What a node shows. `material` is that of its component, or of one above it.
void buildMesh(ExportContext& context, GltfNode& node, const HostRef<HostComponent>& component,
               const HostRef<HostPart>& part, const HostRef<HostModelDoc>& document, GltfMaterial* material) {
    const HostRef<HostBodyEnumerator> bodies = component
                                                   ? component->enumerateBodies(kSolidBody, kVisibleOnly)
                                                   : part->enumerateBodies(kSolidBody, kVisibleOnly);
    if (!bodies) {
        return;
    }
    NodeMaterials materials(context.appearances, material, document.get(),
                            component ? component->componentName() : std::u16string());
    materials.buildFaceMap(*bodies);
    bodies->reset();

    context.meshBuffers.folder.settle();
    GeomStreams streams;
    tessellateBodies(*bodies,
                     {.materialOf = [&](HostFace& face) { return materials.faceMaterial(face); },
                      .modelBounds = [&]() -> const ModelBounds& { return modelBounds(context); },
                      .memory = context.meshBuffers.folder.memory()},
                     streams);
    if (streams.empty()) {
        return;
    }
    if (component) {
        addDecals(context.document, streams, *component);
    }
    registerMaterials(context, streams);
    writeMeshBuffers(context.document, node, streams, context.meshBuffers);
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
    const HostRef<HostModelDoc> thisDoc = documentOf(component, part);
    context.nodeDocuments.emplace(node.id, thisDoc);
    bool hasGeometry = true;
    if (component) {
        const bool isHidden = component->isHidden(0) != 0;
        hasGeometry = component->isLoaded() != 0 && component->isSuppressed() == 0 && !isHidden;
        node.component = component->identity();
        node.visible = !isHidden;
    }
    nameNode(node, component ? component->componentName() : context.title);
    const ParentNode self{node.id, placeNode(context, node, component.get(), parent),
                          componentMaterial(context, component, parent)};
    if (context.nodeOrigins && component) {
        context.nodeOrigins->try_emplace(node.id, NodeOrigin{component, self.world});
    }
    if (hasGeometry) {
        // An appearance of the root component itself reaches only what stands below it.
        buildMesh(context, node, component, part, thisDoc, parent ? self.material : nullptr);
    }
    if (component && component->getChildrenCount() > 0) {
        for (const HostRef<HostComponent>& child : component->getChildren()) {
            buildComponentTree(context, child, part, node.children, &self);
        }
    }
    progressAddDone(document.progress, 1);
}

} // namespace orvane::exporter
