#include "embedded/EmbeddedSession.h"

#include <utility>

namespace orvane {

EmbeddedSession::EmbeddedSession(Model openedModel) : model(std::move(openedModel)) {
    const ModelDocument& document = opened();
    for (std::size_t i = 0; i < document.configurations.size(); ++i) {
        configurationsByName.try_emplace(document.configurations[i].name, i);
    }
    if (document.kind == DocumentKind::assembly) {
        components.emplace(document);
    }
    showConfiguration(document.activeConfiguration);
}

void EmbeddedSession::showConfiguration(std::size_t position) {
    activeConfiguration = position;
    if (components) {
        const ConfigurationRecord& configuration = opened().configurations[position];
        components->apply(configuration, configuration.displayStates.empty()
                                             ? nullptr
                                             : &configuration.displayStates.front());
    }
}

void EmbeddedSession::applyDisplayState(std::size_t position) {
    if (components) {
        const ConfigurationRecord& configuration = opened().configurations[activeConfiguration];
        components->apply(configuration, &configuration.displayStates[position]);
    }
}

} // namespace orvane
