#include "embedded/EmbeddedSession.h"

#include <algorithm>
#include <utility>

namespace orvane::embedded {

EmbeddedSession::EmbeddedSession(Model openedModel, std::u16string folder)
    : model(std::move(openedModel)), hostInstallFolder(std::move(folder)) {
    const ModelDocument& document = opened();
    for (const ConfigurationRecord& configuration : document.configurations) {
        configurationsByName_.try_emplace(configuration.name, &configuration);
    }
    showConfiguration(document.configurations[document.activeConfiguration]);
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
    return isOpened(document) ? *activeConfiguration_ : document.configurations[document.activeConfiguration];
}

const DisplayStateRecord* EmbeddedSession::displayStateOf(const ModelDocument& document) const {
    return isOpened(document) ? activeDisplayState_ : firstDisplayState(configurationOf(document));
}

const ConfigurationRecord* EmbeddedSession::findConfiguration(const ModelDocument& document,
                                                              const std::u16string& name) const {
    if (isOpened(document)) {
        const auto found = configurationsByName_.find(name);
        return found == configurationsByName_.end() ? nullptr : found->second;
    }
    const auto found = std::ranges::find(document.configurations, name, &ConfigurationRecord::name);
    return found == document.configurations.end() ? nullptr : &*found;
}

void EmbeddedSession::showConfiguration(const ConfigurationRecord& configuration) {
    activeConfiguration_ = &configuration;
    applyDisplayState(firstDisplayState(configuration));
}

void EmbeddedSession::applyDisplayState(const DisplayStateRecord* displayState) {
    activeDisplayState_ = displayState;
    if (opened().kind == DocumentKind::assembly) {
        componentsOf(opened()).apply(configurationOf(opened()), displayStateOf(opened()));
    }
    if (StudyPlayback* const playback = studies ? studies->playback() : nullptr) {
        playback->forgetPlacements();
    }
}

} // namespace orvane::embedded
