#pragma once

#include "platform/SettingsStore.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace orvane {

/// The switches and folders of all exports of a process. Switches are the host's 16-bit flags: 0 is off,
/// anything else on. Five of them are kept in the settings store under their own names; the others last as
/// long as the process.
class ExportOptions {
public:
    /// All persistent switches off, folders on the user's desktop. Without a store nothing is kept.
    explicit ExportOptions(SettingsStore* store = nullptr);

    /// Takes over every persistent switch that the store holds; one that it does not hold stays as it is.
    void load();

    std::int16_t exportAnimations() const { return exportAnimations_; }
    std::int16_t exportExplodedViews() const { return exportExplodedViews_; }
    std::int16_t exportViews() const { return exportViews_; }
    std::int16_t exportCameras() const { return exportCameras_; }
    std::int16_t exportLights() const { return exportLights_; }
    void setExportAnimations(std::int16_t value) { setPersistent(&ExportOptions::exportAnimations_, value); }
    void setExportExplodedViews(std::int16_t value) {
        setPersistent(&ExportOptions::exportExplodedViews_, value);
    }
    void setExportViews(std::int16_t value) { setPersistent(&ExportOptions::exportViews_, value); }
    void setExportCameras(std::int16_t value) { setPersistent(&ExportOptions::exportCameras_, value); }
    void setExportLights(std::int16_t value) { setPersistent(&ExportOptions::exportLights_, value); }

    /// Shown to the person, without effect.
    std::int16_t meshFlag() const { return meshFlag_; }
    void setMeshFlag(std::int16_t value) { meshFlag_ = value; }
    /// Splits large meshes into primitives that 16-bit indices can address.
    std::int16_t limitPrimitiveSize() const { return limitPrimitiveSize_; }
    void setLimitPrimitiveSize(std::int16_t value) { limitPrimitiveSize_ = value; }
    std::int16_t automationFlag() const { return automationFlag_; }
    void setAutomationFlag(std::int16_t value) { automationFlag_ = value; }
    /// Loads lightweight components for the time of the export.
    std::int16_t resolveComponents() const { return resolveComponents_; }
    void setResolveComponents(std::int16_t value) { resolveComponents_ = value; }
    /// Whether an export without a path becomes a `.glb`.
    std::int16_t defaultBinary() const { return defaultBinary_; }
    void setDefaultBinary(std::int16_t value) { defaultBinary_ = value; }
    std::int16_t generateThumbnails() const { return generateThumbnails_; }
    void setGenerateThumbnails(std::int16_t value) { generateThumbnails_ = value; }
    std::int16_t catalogRequested() const { return catalogRequested_; }
    void setCatalogRequested(std::int16_t value) { catalogRequested_ = value; }

    /// The folder of an export without a path.
    const std::u16string& destinationDirectory() const { return destinationDirectory_; }
    void setDestinationDirectory(std::u16string folder) { destinationDirectory_ = std::move(folder); }
    const std::u16string& qaDestinationDirectory() const { return qaDestinationDirectory_; }
    void setQaDestinationDirectory(std::u16string folder) { qaDestinationDirectory_ = std::move(folder); }
    const std::u16string& databaseDirectory() const { return databaseDirectory_; }
    void setDatabaseDirectory(std::u16string folder) { databaseDirectory_ = std::move(folder); }

private:
    using Flag = std::int16_t ExportOptions::*;
    struct PersistentFlag {
        std::string_view name;
        Flag flag;
    };
    static std::span<const PersistentFlag> persistentFlags();
    void setPersistent(Flag flag, std::int16_t value);

    SettingsStore* store_;
    std::int16_t exportAnimations_ = 0;
    std::int16_t exportExplodedViews_ = 0;
    std::int16_t exportViews_ = 0;
    std::int16_t exportCameras_ = 0;
    std::int16_t exportLights_ = 0;
    std::int16_t meshFlag_ = -1;
    std::int16_t limitPrimitiveSize_ = -1;
    std::int16_t automationFlag_ = -1;
    std::int16_t resolveComponents_ = -1;
    std::int16_t defaultBinary_ = -1;
    std::int16_t generateThumbnails_ = 0;
    std::int16_t catalogRequested_ = 0;
    std::u16string destinationDirectory_;
    std::u16string qaDestinationDirectory_;
    std::u16string databaseDirectory_;
};

} // namespace orvane
