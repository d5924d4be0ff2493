#include "BenchModels.h"

#include "model/records/ModelDefaults.h"

#include <memory>
#include <string>
#include <utility>

namespace orvane {

namespace {

std::u16string numbered(const char16_t* name, std::size_t number) {
    const std::string digits = std::to_string(number);
    return name + std::u16string(digits.begin(), digits.end());
}

ModelDocument& addDocument(Model& model, DocumentKind kind, const std::u16string& title) {
    ModelDocument& document = *model.documents.emplace_back(std::make_unique<ModelDocument>());
    document.kind = kind;
    document.title = title;
    document.path = u"\\models\\" + title;
    document.root.name = title;
    document.configurations = {defaultConfiguration()};
    return document;
}

ModelDocument& addPart(Model& model, std::size_t triangles) {
    ModelDocument& part = addDocument(model, DocumentKind::part, u"part.tfgprt");
    part.bodies.resize(1);
    FaceRecord& face = part.bodies[0].faces.emplace_back();
    face.positions.resize(9 * triangles);
    face.normals.resize(9 * triangles);
    face.texCoords.resize(6 * triangles);
    for (std::size_t i = 0; i < face.positions.size(); ++i) {
        face.positions[i] = static_cast<float>((i * 7919) % 10'007) * 0.001f;
        face.normals[i] = i % 3 == 2 ? 1.0f : 0.0f;
    }
    return part;
}

ComponentRecord placed(std::u16string name, const ModelDocument& document, std::size_t number) {
    ComponentRecord component;
    component.name = std::move(name);
    component.document = &document;
    component.placement = kIdentityPlacement;
    (*component.placement)[9] = static_cast<double>(number) * 0.01;
    (*component.placement)[10] = static_cast<double>(number % 97) * 0.013;
    return component;
}

} // namespace

Model singlePart(std::size_t triangles) {
    Model model;
    addPart(model, triangles);
    return model;
}

Model flatAssembly(std::size_t components, std::size_t triangles, bool equalNames) {
    Model model;
    ModelDocument& assembly = addDocument(model, DocumentKind::assembly, u"flat.tfgasm");
    const ModelDocument& part = addPart(model, triangles);
    for (std::size_t i = 0; i < components; ++i) {
        assembly.components.push_back(placed(equalNames ? u"bolt" : numbered(u"part-", i), part, i));
    }
    return model;
}

Model nestedAssembly(std::size_t components) {
    Model model;
    ModelDocument& assembly = addDocument(model, DocumentKind::assembly, u"nested.tfgasm");
    ModelDocument& group = addDocument(model, DocumentKind::assembly, u"group.tfgasm");
    const ModelDocument& part = addPart(model, 1);
    for (std::size_t i = 0; i < 9; ++i) {
        group.components.push_back(placed(numbered(u"part-", i), part, i));
    }
    for (std::size_t i = 0; i < components / 10; ++i) {
        assembly.components.push_back(placed(numbered(u"group-", i), group, i));
    }
    return model;
}

Model configuredAssembly(std::size_t components, std::size_t configurations) {
    Model model = flatAssembly(components, 1);
    std::vector<ConfigurationRecord>& list = model.documents.front()->configurations;
    list.resize(configurations, list.front());
    for (std::size_t i = 0; i < configurations; ++i) {
        list[i].name = numbered(u"Size ", i);
    }
    return model;
}

Model paintedPart(std::size_t appearances, std::size_t faces, bool onBodies) {
    constexpr std::size_t kFacesInABody = 20;
    Model model;
    ModelDocument& part = addPart(model, 1);
    const FaceRecord face = part.bodies[0].faces[0];
    part.bodies.clear();
    part.appearances.resize(appearances);
    for (std::size_t i = 0; i < appearances; ++i) {
        part.appearances[i].hasAppliedTo = true;
        part.appearances[i].primaryColor = static_cast<std::uint32_t>(i * 7919 % 0x1000000);
    }
    for (std::size_t i = 0; i < faces; ++i) {
        const std::size_t body = i / kFacesInABody;
        if (i % kFacesInABody == 0) {
            part.bodies.emplace_back().name = numbered(u"Body", body);
        }
        EntityRecord entity;
        entity.kind = onBodies ? EntityKind::body : EntityKind::face;
        entity.body = static_cast<std::int32_t>(body);
        entity.face = static_cast<std::int32_t>(i % kFacesInABody);
        part.bodies.back().faces.push_back(face);
        if (appearances == 0) {
            continue;
        }
        if (!onBodies) {
            part.appearances[i % appearances].appliedTo.push_back(entity);
        } else if (i % kFacesInABody == 0) {
            part.appearances[body % appearances].appliedTo.push_back(entity);
        }
    }
    return model;
}

Model movingAssembly(std::size_t components, std::size_t frames, std::size_t levels) {
    constexpr std::int32_t kFrameRate = 128; // so that the steps add up without rounding
    Model model;
    ModelDocument& assembly = addDocument(model, DocumentKind::assembly, u"moving.tfgasm");
    MotionStudyRecord& study = assembly.motionStudies.emplace_back();
    study.name = u"Motion";
    study.frameRate = kFrameRate;
    study.duration = static_cast<double>(frames - 1) / kFrameRate;
    for (std::size_t chain = 0; chain < components / levels; ++chain) {
        std::vector<ComponentRecord>* list = &assembly.components;
        std::u16string name;
        for (std::size_t level = 0; level < levels; ++level) {
            ComponentRecord& component = list->emplace_back(placed(numbered(u"c", chain), assembly, chain));
            component.document = nullptr;
            name += (level == 0 ? u"" : u"/") + component.name;
            TrackRecord& track = study.tracks.emplace_back();
            track.component = name;
            track.keys.resize(2);
            track.keys[0].placement = *component.placement;
            track.keys[1].time = study.duration;
            track.keys[1].placement = {0, 1, 0, -1, 0, 0, 0, 0, 1, 0.5, 0.25, 1, 1, 0, 0, 0};
            list = &component.components.emplace();
        }
    }
    return model;
}

} // namespace orvane
