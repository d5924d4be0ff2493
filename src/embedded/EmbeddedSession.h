#pragma once

#include "embedded/ComponentInstances.h"
#include "embedded/ModelRecords.h"
#include "host/HostModelDoc.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

namespace orvane {

/// The one model that the embedded host has open, and all that changes while it is: shared by every host
/// object, so that an object stays usable as long as someone holds it.
struct EmbeddedSession {
    explicit EmbeddedSession(Model openedModel);

    const ModelDocument& opened() const { return *model.documents.front(); }
    /// Makes a configuration of the opened document active and applies its first display state.
    void showConfiguration(std::size_t position);
    /// Applies a display state of the active configuration.
    void applyDisplayState(std::size_t position);

    Model model;
    std::size_t activeConfiguration = 0;          ///< of the opened document
    std::optional<ComponentInstances> components; ///< of an assembly
    std::unordered_map<std::u16string, std::size_t>
        configurationsByName; ///< of the opened document, first one of a name
    std::unordered_map<const FaceRecord*, std::int32_t>
        faceMarks; ///< those that differ from the face's own value
};

using SessionRef = std::shared_ptr<EmbeddedSession>;

// The host objects, made when they are asked for. Two of them for the same record have the same identity.

HostRef<HostModelDoc> makeModelDoc(const SessionRef& session, const ModelDocument& document);
HostRef<HostConfiguration> makeConfiguration(const SessionRef& session, const ModelDocument& document,
                                             std::size_t position);
/// `position` is that of the instance among the opened assembly's components.
HostRef<HostComponent> makeComponent(const SessionRef& session, std::int32_t position);
/// The bodies of `document` that exist in its active configuration; empty for a document that is no part.
HostRef<HostBodyEnumerator> makeBodyEnumerator(const SessionRef& session, const ModelDocument& document,
                                               std::int32_t bodyType, bool visibleOnly);
HostRef<HostTransform> makeTransform(const Placement& placement);

} // namespace orvane
