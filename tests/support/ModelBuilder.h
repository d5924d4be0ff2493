#pragma once

#include "model/records/ModelDefaults.h"
#include "model/records/ModelRecords.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orvane {

/// One right triangle in the plane z = `z`, its corners at 0 and at 1 on both axes.
inline FaceRecord triangleFace(float z = 0) {
    return {.positions = {0, 0, z, 1, 0, z, 0, 1, z}, .normals = {0, 0, 1, 0, 0, 1, 0, 0, 1}};
}

/// A face of `count` copies of that triangle.
inline FaceRecord triangleFaces(std::size_t count) {
    FaceRecord face;
    const FaceRecord one = triangleFace();
    for (std::size_t i = 0; i < count; ++i) {
        face.positions.insert(face.positions.end(), one.positions.begin(), one.positions.end());
        face.normals.insert(face.normals.end(), one.normals.begin(), one.normals.end());
    }
    return face;
}

inline Placement moved(double x, double y, double z) {
    return {1, 0, 0, 0, 1, 0, 0, 0, 1, x, y, z, 1, 0, 0, 0};
}

/// Turned by 90 degrees about z, then moved.
inline Placement turned(double x, double y, double z) {
    return {0, 1, 0, -1, 0, 0, 0, 0, 1, x, y, z, 1, 0, 0, 0};
}

/// Builds a model for the embedded host. The first document made is the opened one.
class ModelBuilder {
public:
    /// A document with the default configuration.
    ModelDocument& document(DocumentKind kind, const std::u16string& title) {
        ModelDocument& made = *model_.documents.emplace_back(std::make_unique<ModelDocument>());
        made.kind = kind;
        setTitle(made, title);
        made.path = u"\\models\\" + title;
        made.configurations = {defaultConfiguration()};
        return made;
    }

    ModelDocument& assembly(const std::u16string& title) { return document(DocumentKind::assembly, title); }

    /// A part with one solid body of the given faces.
    ModelDocument& part(const std::u16string& title, std::vector<FaceRecord> faces = {triangleFace()}) {
        ModelDocument& made = document(DocumentKind::part, title);
        made.bodies.push_back({.name = u"Body1", .faces = std::move(faces)});
        return made;
    }

    static ConfigurationRecord configuration(const std::u16string& name,
                                             const std::vector<std::u16string>& states) {
        ConfigurationRecord made;
        made.name = name;
        for (const std::u16string& state : states) {
            made.displayStates.push_back({.name = state});
        }
        return made;
    }

    static ComponentRecord component(const std::u16string& name, const ModelDocument* document = nullptr,
                                     const Placement& placement = kIdentityPlacement) {
        return {.name = name, .document = document, .placement = placement};
    }

    Model take() { return std::move(model_); }

private:
    Model model_;
};

} // namespace orvane
