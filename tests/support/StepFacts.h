#pragma once

#include "model/records/ModelError.h"
#include "model/step/StepReader.h"
#include "platform/NarrowText.h"
#include "support/BodyFacts.h"

#include <filesystem>
#include <sstream>
#include <stdexcept>

/// Reads STEP files, and tells what was read.
namespace orvane::step_facts {

inline Model read(const std::filesystem::path& file, const MeshingOptions& options = {}) {
    Model model;
    const ModelDocument* opened = step::readStepFile(file, {.meshing = options}, model);
    EXPECT_EQ(opened, model.documents.front().get());
    return model;
}

inline const std::vector<FaceRecord>& facesOf(const Model& model) {
    return model.documents.front()->bodies.at(0).faces;
}

inline std::string errorOfReading(const std::filesystem::path& file) {
    try {
        read(file);
    } catch (const ModelError& error) {
        return error.what();
    }
    return "no error";
}

inline const ModelDocument& documentTitled(const Model& model, std::u16string_view title) {
    for (const auto& document : model.documents) {
        if (document->title == title) {
            return *document;
        }
    }
    throw std::runtime_error("no document " + toSystemNarrow(title));
}

/// `name(children)`, all levels.
inline std::string treeOf(const std::vector<ComponentRecord>& components) {
    std::string out;
    for (const ComponentRecord& component : components) {
        out += out.empty() ? "" : " ";
        out += toSystemNarrow(component.name);
        if (component.document->kind == DocumentKind::assembly) {
            out += '(';
            out += treeOf(component.document->components);
            out += ')';
        }
    }
    return out;
}

/// `kind colour transparency entities`, one for each appearance.
inline std::vector<std::string> looksOf(const ModelDocument& document) {
    constexpr std::array<const char*, 5> kKinds = {"document", "body", "feature", "face", "component"};
    std::vector<std::string> looks;
    for (const AppearanceRecord& appearance : document.appearances) {
        EXPECT_TRUE(appearance.hasAppliedTo);
        std::ostringstream out;
        out << kKinds.at(static_cast<std::size_t>(appearance.appliedTo.front().kind)) << ' ' << std::hex
            << appearance.primaryColor << std::dec << ' ' << appearance.transparency;
        for (const EntityRecord& entity : appearance.appliedTo) {
            out << ' ' << entity.body << '/' << entity.face << toSystemNarrow(entity.component);
        }
        looks.push_back(out.str());
    }
    return looks;
}

} // namespace orvane::step_facts
