#pragma once

#include "embedded/ComponentInstances.h"
#include "embedded/EmbeddedStudies.h"
#include "host/HostMathUtility.h"
#include "host/HostModelDoc.h"
#include "model/records/ModelRecords.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace orvane::embedded {

/// What the view on the screen shows.
struct ScreenState {
    void show(const ViewRecord& view) {
        values = view;
        camera = view.camera ? &*view.camera : nullptr;
    }

    std::optional<ViewRecord> values;     ///< nothing: those of a view that fits the model
    const CameraRecord* camera = nullptr; ///< the active one, or null; that of `values` plays no part
};

/// The one model that the embedded host has open, and all that changes while it is: shared by every host
/// object, so that an object stays usable as long as someone holds it.
struct EmbeddedSession {
    EmbeddedSession(Model openedModel, std::u16string folder);

    const ModelDocument& opened() const { return *model.documents.front(); }
    bool isOpened(const ModelDocument& document) const { return &document == &opened(); }

    /// The first configuration of that name; null where there is none.
    const ConfigurationRecord* findConfiguration(const ModelDocument& document,
                                                 const std::u16string& name) const;
    /// Makes a configuration of the opened document active and applies its first display state.
    void showConfiguration(const ConfigurationRecord& configuration);
    /// Applies a display state of the active configuration; null where that has none.
    void applyDisplayState(const DisplayStateRecord* displayState);

    /// The active configuration of any document; only that of the opened one changes.
    const ConfigurationRecord& configurationOf(const ModelDocument& document) const;
    /// The applied display state of any document; null where the configuration has none.
    const DisplayStateRecord* displayStateOf(const ModelDocument& document) const;
    /// The components of an assembly, instanced: of the opened one as they are shown, of any other as they
    /// stand in it alone.
    ComponentInstances& componentsOf(const ModelDocument& assembly);

    Model model;
    std::u16string hostInstallFolder;
    std::unordered_map<const FaceRecord*, std::int32_t>
        faceMarks; ///< those that differ from the face's own value
    ScreenState screen;
    std::optional<EmbeddedStudies> studies; ///< of the opened document; there from the start

private:
    const ConfigurationRecord* activeConfiguration_ = nullptr; ///< of the opened document
    const DisplayStateRecord* activeDisplayState_ = nullptr;   ///< of that configuration
    std::unordered_map<std::u16string, const ConfigurationRecord*>
        configurationsByName_; ///< of the opened document, first one of a name
    std::unordered_map<const ModelDocument*, ComponentInstances> components_; ///< made when asked for
};

using SessionRef = std::shared_ptr<EmbeddedSession>;

// The host objects, made when they are asked for. Two of them for the same record have the same identity.

HostRef<HostModelDoc> makeModelDoc(const SessionRef& session, const ModelDocument& document);
HostRef<HostConfiguration> makeConfiguration(const SessionRef& session, const ModelDocument& document,
                                             const ConfigurationRecord& configuration);
/// `position` is that of the instance among the components of `assembly`.
HostRef<HostComponent> makeComponent(const SessionRef& session, const ModelDocument& assembly,
                                     std::int32_t position);
HostRef<HostBody> makeBody(const SessionRef& session, const ModelDocument& document, const BodyRecord& body);
HostRef<HostFace> makeFace(const SessionRef& session, const ModelDocument& document, const FaceRecord& face);
/// `position` is that among the document's features, flattened; empty for -1.
HostRef<HostFeature> makeFeature(const SessionRef& session, const ModelDocument& document,
                                 std::int32_t position);
/// The bodies of a part that exist in its active configuration, in the order of its records.
std::vector<const BodyRecord*> existingBodies(const EmbeddedSession& session, const ModelDocument& part);
/// The bodies of `document` that exist in its active configuration; empty for a document that is no part.
HostRef<HostBodyEnumerator> makeBodyEnumerator(const SessionRef& session, const ModelDocument& document,
                                               std::int32_t bodyType, bool visibleOnly);
HostRef<HostTransform> makeTransform(const Placement& placement);
HostRef<HostMathPoint> makePoint(const Vector3& coordinates);
HostRef<HostMathVector> makeVector(const Vector3& coordinates);
HostRef<HostMathUtility> makeMathUtility();
/// What manages the motion studies of the opened document.
HostRef<HostObject> makeStudyManager(const SessionRef& session);
/// An appearance that `document` holds.
HostRef<HostAppearance> makeAppearance(const SessionRef& session, const ModelDocument& document,
                                       const AppearanceRecord& appearance);
/// Decals that `document` holds; those that do not say what they are applied to are stuck on `component`, if
/// there is one.
std::vector<HostRef<HostDecal>> makeDecals(const SessionRef& session, const ModelDocument& document,
                                           const std::vector<DecalRecord>& decals,
                                           const HostRef<HostComponent>& component);

} // namespace orvane::embedded
