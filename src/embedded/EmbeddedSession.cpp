#include "embedded/EmbeddedSession.h"

#include <utility>

namespace orvane::embedded {

EmbeddedSession::EmbeddedSession(Model openedModel, std::u16string folder)
    : model(std::move(openedModel)), hostInstallFolder(std::move(folder)) {
    const ModelDocument& document = opened();
    for (std::size_t i = 0; i < document.configurations.size(); ++i) {
        configurationsByName.try_emplace(document.configurations[i].name, i);
    }
    showConfiguration(document.activeConfiguration);
    if (document.view) {
        screen.show(*document.view);
    }
    studies.emplace(document, document.kind == DocumentKind::assembly ? &componentsOf(document) : nullptr);
}

ComponentInstances& EmbeddedSession::componentsOf(const ModelDocument& assembly) {
    const auto [entry, isNew] = components_.try_emplace(&assembly, assembly);
    if (isNew) {
        entry->second.apply(configurationOf(assembly), displayStateOf(assembly));
    }
    return entry->second;
}

const ConfigurationRecord& EmbeddedSession::configurationOf(const ModelDocument& document) const {
    const bool isOpened = &document == &opened();
    return document.configurations[isOpened ? activeConfiguration : document.activeConfiguration];
}

const DisplayStateRecord* EmbeddedSession::displayStateOf(const ModelDocument& document) const {
    const std::size_t position = &document == &opened() ? activeDisplayState : 0;
    const auto& states = configurationOf(document).displayStates;
    return position < states.size() ? &states[position] : nullptr;
}

void EmbeddedSession::showConfiguration(std::size_t position) {
    activeConfiguration = position;
    applyDisplayState(0);
}

void EmbeddedSession::applyDisplayState(std::size_t position) {
    activeDisplayState = position;
    if (opened().kind == DocumentKind::assembly) {
        componentsOf(opened()).apply(configurationOf(opened()), displayStateOf(opened()));
    }
    if (StudyPlayback* const playback = studies ? studies->playback() : nullptr) {
        playback->forgetPlacements();
    }
}

} // namespace orvane::embedded
