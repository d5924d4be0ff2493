#pragma once

#include "platform/SettingsStore.h"

#include <cstdint>
#include <string>

namespace orvane {

/// A switch is the host's 16-bit flag: 0 is off, anything else on.
inline constexpr std::int16_t kSwitchOff = 0;
inline constexpr std::int16_t kSwitchOn = -1;

/// The user's desktop folder, where every folder option points at first.
std::u16string desktopDirectory();

/// The switches and folders of all exports of a process, with their defaults. Whatever a person can switch on
/// the command line, or what is kept from run to run, has a row in `kExportOptions`.
struct ExportOptions {
    std::int16_t exportViews = kSwitchOff;
    std::int16_t exportCameras = kSwitchOff;
    std::int16_t exportLights = kSwitchOff;
    std::int16_t exportAnimations = kSwitchOff;
    std::int16_t exportExplodedViews = kSwitchOff;
    std::int16_t limitPrimitiveSize = kSwitchOn; ///< splits meshes into primitives for 16-bit indices
    std::int16_t resolveComponents = kSwitchOn;  ///< loads lightweight components while the export runs
    std::int16_t generateThumbnails = kSwitchOff;
    std::int16_t defaultBinary = kSwitchOn; ///< whether an export without a path becomes a `.glb`
    std::u16string destinationDirectory = desktopDirectory(); ///< of an export without a path

    // No export reads the following ones: they are what the options page shows and what the tools around the
    // exporter hand to each other.
    std::int16_t meshFlag = kSwitchOn;                          ///< for the options page alone
    std::int16_t automationFlag = kSwitchOn;                    ///< off while the catalog or the QA runs
    std::int16_t catalogRequested = kSwitchOff;                 ///< set by the catalog's dialog
    std::u16string qaDestinationDirectory = desktopDirectory(); ///< of the QA's results
    std::u16string databaseDirectory = desktopDirectory();      ///< of the catalog
};

using ExportSwitch = std::int16_t ExportOptions::*;

/// What the command and the settings store know of one switch.
struct OptionRow {
    ExportSwitch option;
    const char* storedName; ///< in the settings store; empty: lasts as long as the process
    const char* flag;       ///< of `orvane export`
    std::int16_t flagValue; ///< what that flag sets
    const char* help;       ///< on the flag
};

/// In the order in which they are shown.
inline constexpr OptionRow kExportOptions[] = {
    {&ExportOptions::exportViews, "ExportViews", "--views", kSwitchOn, "Export the named views as cameras"},
    {&ExportOptions::exportCameras, "ExportCameras", "--cameras", kSwitchOn, "Export the camera features"},
    {&ExportOptions::exportLights, "ExportLights", "--lights", kSwitchOn, "Export the lights"},
    {&ExportOptions::exportAnimations, "ExportAnimations", "--animations", kSwitchOn,
     "Export the motion studies"},
    {&ExportOptions::exportExplodedViews, "ExportExplodedViews", "--exploded-views", kSwitchOn,
     "Export the exploded views as animations"},
    {&ExportOptions::limitPrimitiveSize, "", "--no-primitive-limit", kSwitchOff,
     "Do not split meshes of more than 21,666 triangles; larger ones come out wrong"},
    {&ExportOptions::resolveComponents, "", "--no-resolve", kSwitchOff,
     "Leave lightweight components without geometry"},
    {&ExportOptions::generateThumbnails, "", "--thumbnails", kSwitchOn,
     "Write a page of pictures beside the result"},
};

/// Takes over every switch that the store holds; one that it does not hold stays as it is.
void loadOptions(ExportOptions& options, SettingsStore& store);
/// Writes a switch to the store if it has a name there.
void storeOption(const ExportOptions& options, ExportSwitch option, SettingsStore& store);

} // namespace orvane
