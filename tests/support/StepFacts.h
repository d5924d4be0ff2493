#pragma once

#include "model/records/ModelError.h"
#include "model/step/StepReader.h"
#include "platform/NarrowText.h"

#include <gp_XYZ.hxx>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

/// Reads STEP files, and tells what was read.
namespace orvane::step_facts {

inline Model read(const std::filesystem::path& file, const MeshingOptions& options = {}) {
    Model model;
    const ModelDocument* opened = step::readStepFile(file, options, model);
    EXPECT_EQ(opened, model.documents.front().get());
    return model;
}

inline const BodyRecord& firstBody(const Model& model) {
    return model.documents.front()->bodies.at(0);
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

struct BodyFacts {
    double volume = 0;      ///< by the divergence theorem: positive where the triangles are turned outward
    double worstNormal = 1; ///< smallest cosine between a corner's normal and its triangle's
    bool hasUnitNormals = true;
    std::size_t triangles = 0;
    std::array<double, 3> extent{}; ///< of the box
};

inline gp_XYZ vectorAt(const std::vector<float>& numbers, std::size_t at) {
    return {static_cast<double>(numbers[at]), static_cast<double>(numbers[at + 1]),
            static_cast<double>(numbers[at + 2])};
}

inline BodyFacts factsOf(const BodyRecord& body) {
    BodyFacts facts;
    std::array<std::vector<double>, 3> coordinates;
    for (const FaceRecord& face : body.faces) {
        EXPECT_EQ(face.normals.size(), face.positions.size());
        EXPECT_EQ(face.texCoords.size() * 3, face.positions.size() * 2);
        facts.triangles += face.positions.size() / 9;
        for (std::size_t at = 0; at < face.positions.size(); ++at) {
            coordinates[at % 3].push_back(static_cast<double>(face.positions[at]));
        }
        for (std::size_t at = 0; at < face.positions.size(); at += 9) {
            const gp_XYZ a = vectorAt(face.positions, at);
            const gp_XYZ b = vectorAt(face.positions, at + 3);
            const gp_XYZ c = vectorAt(face.positions, at + 6);
            const gp_XYZ plane = (b - a).Crossed(c - a).Normalized();
            facts.volume += a.Dot(b.Crossed(c)) / 6;
            for (std::size_t corner = at; corner < at + 9; corner += 3) {
                const gp_XYZ normal = vectorAt(face.normals, corner);
                facts.worstNormal = std::min(facts.worstNormal, normal.Dot(plane));
                facts.hasUnitNormals = facts.hasUnitNormals && std::abs(normal.Modulus() - 1) < 1e-5;
            }
        }
    }
    for (std::size_t axis = 0; axis < 3 && facts.triangles > 0; ++axis) {
        const auto [low, high] = std::ranges::minmax(coordinates[axis]);
        facts.extent[axis] = high - low;
    }
    return facts;
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
