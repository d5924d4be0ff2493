#include "export/ExportOptions.h"

#include "platform/Files.h"
#include "platform/NarrowText.h"

namespace orvane {

namespace {

bool isStored(const OptionRow& row) {
    return *row.storedName != '\0';
}

} // namespace

std::u16string desktopDirectory() {
    return fromSystemNarrow(desktopFolder());
}

void loadOptions(ExportOptions& options, SettingsStore& store) {
    for (const OptionRow& row : kExportOptions) {
        if (!isStored(row)) {
            continue;
        }
        if (const std::optional<std::uint32_t> value = store.read(row.storedName)) {
            options.*row.option = static_cast<std::int16_t>(*value);
        }
    }
}

void storeOption(const ExportOptions& options, ExportSwitch option, SettingsStore& store) {
    for (const OptionRow& row : kExportOptions) {
        if (row.option == option && isStored(row)) {
            store.write(row.storedName, static_cast<std::uint32_t>(std::int32_t{options.*option}));
        }
    }
}

} // namespace orvane
