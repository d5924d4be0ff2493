#pragma once

#include "appearance/AppearanceTable.h"
#include "host/HostBody.h"
#include "host/HostModelDoc.h"

#include <cstdint>
#include <string>
#include <unordered_map>

namespace orvane {

/// Which material each face of one node takes. The highest that there is goes before all others: the node's
/// component or one above it; the face itself; the feature that made it; the first seed of that feature that
/// has one, where it propagates; its body; the part document.
class NodeMaterials {
public:
    /// `component` is the material of the node's component or of one above it; it may be null. `document` is
    /// the one that the node shows; it may be null. `componentName` is empty for a node without a component.
    NodeMaterials(const AppearanceTable& table, GltfMaterial* component, HostModelDoc* document,
                  const std::u16string& componentName);

    /// Prepares the faces of all bodies: those that take the material of a feature or a body get a mark to
    /// carry it. Leaves the enumerator behind its last body.
    void buildFaceMap(HostBodyEnumerator& bodies);

    /// The material of a face, null for the default one. Takes marks away again that do not stand for an
    /// appearance of the face itself, so that they do not live on into a later export.
    GltfMaterial* faceMaterial(HostFace& face) const;

private:
    GltfMaterial* featureMaterial(const HostFace& face) const;

    const AppearanceTable& table_;
    HostModelDoc* document_;
    GltfMaterial* component_;
    GltfMaterial* documentMaterial_ =
        nullptr; ///< of the part document, or of one that goes by the node's name
    std::unordered_map<std::int32_t, GltfMaterial*> faceMap_; ///< by mark
};

} // namespace orvane
