#pragma once

#include "host/HostAppearance.h"
#include "host/HostAssembly.h"
#include "host/HostConfiguration.h"
#include "host/HostDocExtension.h"
#include "host/HostFeature.h"
#include "host/HostLight.h"
#include "host/HostPart.h"
#include "host/HostRef.h"
#include "host/HostTables.h"
#include "host/HostView.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvane {

/// Document types by the host's numbers.
inline constexpr std::int32_t kPartDocument = 1;
inline constexpr std::int32_t kAssemblyDocument = 2;

/// An open document.
class HostModelDoc : public HostObject {
public:
    virtual std::int32_t getDocumentType() const = 0;
    /// The title that the host shows; empty when it gives none.
    virtual std::u16string documentTitle() const = 0;
    /// Full path of the document's file.
    virtual std::u16string documentPath() const = 0;

    /// Empty for a document that is no part.
    virtual HostRef<HostPart> partInterface() = 0;
    /// Empty for a document that is no assembly.
    virtual HostRef<HostAssembly> assemblyInterface() = 0;
    virtual HostRef<HostDocExtension> extension() = 0;

    /// The appearances that the document lists in its active configuration; an entry may be empty.
    virtual std::vector<HostRef<HostAppearance>> appearances() = 0;

    /// The first feature of the document's tree; empty when there is none.
    virtual HostRef<HostFeature> firstFeature() = 0;

    /// Empty for a document without one.
    virtual HostRef<HostDesignTable> designTable() = 0;

    /// The view on the screen that shows the document; empty when none does.
    virtual HostRef<HostView> activeView() = 0;
    virtual void setActiveView(const HostRef<HostView>& view) = 0;
    virtual std::int32_t countNamedViews() const = 0;
    /// At most the first `count` names, in the host's order.
    virtual std::vector<std::u16string> listNamedViews(std::int32_t count) const = 0;
    /// Puts a named view on the screen.
    virtual void showNamedView(const std::u16string& name) = 0;

    virtual std::int32_t countLights() const = 0;
    /// Lights are numbered from 0. Names are empty when the light has none.
    virtual std::u16string lightInternalName(std::int32_t number) const = 0;
    virtual std::u16string lightUserName(std::int32_t number) const = 0;
    /// Fills `properties`; leaves them as they are when the host fails.
    virtual void lightProperties(std::int32_t number, PackedData& properties) const = 0;

    virtual HostRef<HostConfiguration> getActiveConfiguration() = 0;
    /// Nothing when the host cannot count them.
    virtual std::optional<std::int32_t> getConfigurationCount() const = 0;
    virtual std::vector<std::u16string> getConfigurationNames() const = 0;
    virtual HostRef<HostConfiguration> getConfigurationByName(const std::u16string& name) = 0;
    /// Makes a configuration the active one; answers whether it did.
    virtual bool showConfiguration(const std::u16string& name) = 0;
};

/// The document that a component shows, by either way of asking; empty when it shows none.
inline HostRef<HostModelDoc> shownDocument(const HostComponent& component) {
    HostRef<HostModelDoc> document = component.queryModelDoc();
    return document ? document : component.getModelDoc();
}

} // namespace orvane
