#include "appearance/NodeMaterials.h"

#include "appearance/AppearanceKeys.h"
#include "appearance/FaceMarks.h"

namespace orvane {

NodeMaterials::NodeMaterials(const AppearanceTable& table, GltfMaterial* component, HostModelDoc* document,
                             const std::u16string& componentName)
    : table_(table), document_(document), component_(component) {
    if (component_) {
        return;
    }
    if (document_ && document_->partInterface()) {
        documentMaterial_ = table_.Find(AppearanceKind::document, document_->documentPath());
    }
    if (!documentMaterial_ && !componentName.empty()) {
        documentMaterial_ = table_.Find(AppearanceKind::document, componentName);
    }
}

GltfMaterial* NodeMaterials::featureMaterial(const HostFace& face) const {
    const HostRef<HostFeature> feature = face.faceOwningFeature();
    if (!feature) {
        return nullptr;
    }
    if (GltfMaterial* own =
            table_.Find(AppearanceKind::feature, appearance::featureKey(document_, feature.get()))) {
        return own;
    }
    const HostRef<HostFeatureDefinition> definition = feature->featureDefinition();
    if (!definition || !definition->definitionPropagate() || definition->definitionSeedCount() < 1) {
        return nullptr;
    }
    for (const HostRef<HostObject>& seed : definition->definitionSeeds()) {
        if (const auto seedFeature = inRole<HostFeature>(seed)) {
            if (GltfMaterial* material = table_.Find(AppearanceKind::feature,
                                                     appearance::featureKey(document_, seedFeature.get()))) {
                return material;
            }
        }
    }
    return nullptr;
}

void NodeMaterials::buildFaceMap(HostBodyEnumerator& bodies) {
    while (const HostRef<HostBody> body = bodies.nextBody()) {
        GltfMaterial* const bodyMaterial =
            table_.Find(AppearanceKind::body, appearance::bodyKey(document_, body.get()));
        for (const HostRef<HostFace>& face : body->bodyFaces(body->bodyFaceCount())) {
            const std::int32_t mark = appearance::faceMark(*face, false);
            const bool hasMark = mark >= 0;
            GltfMaterial* theMaterial = hasMark ? table_.Find(AppearanceKind::face, mark) : nullptr;
            if (!theMaterial) {
                theMaterial = featureMaterial(*face);
            }
            if (!theMaterial) {
                theMaterial = bodyMaterial;
            }
            if (theMaterial && hasMark) {
                faceMap_[mark] = theMaterial;
            } else if (theMaterial) {
                const std::int32_t newMark = appearance::faceMark(*face, true);
                faceMap_.emplace(newMark, theMaterial);
                if (!component_) { // otherwise all faces take that one, marked or not
                    appearance::reportLostMark(newMark, table_.source().report);
                }
            }
        }
    }
}

GltfMaterial* NodeMaterials::faceMaterial(HostFace& face) const {
    if (component_) {
        return component_;
    }
    GltfMaterial* theMaterial = nullptr;
    if (const std::int32_t mark = appearance::faceMark(face, false); mark >= 0) {
        GltfMaterial* const own = table_.Find(AppearanceKind::face, mark);
        const auto mapped = faceMap_.find(mark);
        theMaterial = mapped == faceMap_.end() ? own : mapped->second;
        if (!own) {
            face.writeFaceMark(0);
        }
    }
    return theMaterial ? theMaterial : documentMaterial_;
}

} // namespace orvane
