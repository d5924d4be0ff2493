#include "export/ExportOptions.h"

#include "platform/Files.h"
#include "platform/NarrowText.h"

namespace orvane {

std::span<const ExportOptions::PersistentFlag> ExportOptions::persistentFlags() {
    static constexpr PersistentFlag kFlags[] = {
        {"ExportAnimations", &ExportOptions::exportAnimations_},
        {"ExportExplodedViews", &ExportOptions::exportExplodedViews_},
        {"ExportViews", &ExportOptions::exportViews_},
        {"ExportCameras", &ExportOptions::exportCameras_},
        {"ExportLights", &ExportOptions::exportLights_},
    };
    return kFlags;
}

ExportOptions::ExportOptions(SettingsStore* store)
    : store_(store), destinationDirectory_(fromSystemNarrow(desktopFolder())),
      qaDestinationDirectory_(destinationDirectory_), databaseDirectory_(destinationDirectory_) {}

void ExportOptions::load() {
    if (!store_) {
        return;
    }
    for (const PersistentFlag& persistent : persistentFlags()) {
        if (const std::optional<std::uint32_t> value = store_->read(persistent.name)) {
            this->*persistent.flag = static_cast<std::int16_t>(*value);
        }
    }
}

void ExportOptions::setPersistent(Flag flag, std::int16_t value) {
    this->*flag = value;
    if (!store_) {
        return;
    }
    for (const PersistentFlag& persistent : persistentFlags()) {
        if (persistent.flag == flag) {
            store_->write(persistent.name, static_cast<std::uint32_t>(std::int32_t{value}));
        }
    }
}

} // namespace orvane
