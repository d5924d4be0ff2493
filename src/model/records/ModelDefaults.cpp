#include "model/records/ModelDefaults.h"

#include "platform/Utf8.h"

namespace orvane {

ConfigurationRecord defaultConfiguration() {
    ConfigurationRecord configuration;
    configuration.name = u"Default";
    configuration.displayStates.emplace_back().name = u"Display State 1";
    return configuration;
}

std::u16string defaultBodyName(std::size_t position) {
    return u"Body" + utf16FromUtf8(std::to_string(position + 1));
}

void setTitle(ModelDocument& document, std::u16string title) {
    document.root.name = title.substr(0, title.rfind(u'.'));
    document.title = std::move(title);
}

} // namespace orvane
