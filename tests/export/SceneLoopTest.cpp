#include "support/ExportRun.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;

TEST(Scenes, ShowTheBodiesOfTheirConfiguration) {
    ModelBuilder builder;
    ModelDocument& part = builder.part(u"p.tfgprt", {triangleFace()});
    part.bodies.push_back({.name = u"Rib", .faces = {triangleFace(), triangleFace()}});
    part.bodies.push_back({.name = u"Sheet", .kind = BodyKind::surface, .faces = {triangleFace()}});
    part.bodies.push_back({.name = u"Ghost", .visible = false, .faces = {triangleFace()}});
    part.configurations = {ModelBuilder::configuration(u"All", {u"A"}),
                           ModelBuilder::configuration(u"Rib", {u"A"}),
                           ModelBuilder::configuration(u"None", {u"A"})};
    part.configurations[1].bodies = {u"Rib"};
    part.configurations[2].bodies = std::vector<std::u16string>{};
    ExportRun run(builder.take());
    const nlohmann::json gltf = run.json();
    EXPECT_THAT(sceneTexts(gltf),
                ElementsAre("All - A = p.tfgprt:0", "Rib - A = p.tfgprt:1", "None - A = p.tfgprt"));
    EXPECT_EQ(gltf["buffers"][0]["byteLength"], 3 * 96 + 20) << "hidden and surface bodies stay out";
    EXPECT_EQ(gltf["buffers"][1]["byteLength"], 2 * 96 + 12);
}

/// A sub-assembly of two parts, instanced twice in an assembly with two configurations of two display states.
Model carModel() {
    ModelBuilder builder;
    ModelDocument& car = builder.assembly(u"car.tfgasm");
    ModelDocument& axle = builder.assembly(u"axle.tfgasm");
    ModelDocument& wheel = builder.part(u"wheel.tfgprt");
    axle.components = {ModelBuilder::component(u"left", &wheel, moved(0, 1, 0)),
                       ModelBuilder::component(u"right", &wheel, turned(0, -1, 0)),
                       ModelBuilder::component(u"nut", &wheel)};
    axle.configurations = {ModelBuilder::configuration(u"Other", {u"S"}),
                           ModelBuilder::configuration(u"Used", {u"S"})};
    axle.activeConfiguration = 1;
    axle.configurations[0].hidden = {u"left", u"right"};
    axle.configurations[1].suppressed = {u"nut"};
    axle.configurations[1].placements = {{u"left", moved(0, 3, 0)}};
    axle.configurations[1].displayStates[0].hidden = {u"right"};
    car.components = {ModelBuilder::component(u"front", &axle, moved(2, 0, 0)),
                      ModelBuilder::component(u"rear", &axle, turned(-2, 0, 0))};
    car.configurations = {ModelBuilder::configuration(u"Full", {u"All", u"Rear only"}),
                          ModelBuilder::configuration(u"Bare", {u"All"})};
    car.activeConfiguration = 1;
    car.configurations[0].shown = {u"rear/right"};
    car.configurations[0].displayStates[1].hidden = {u"front", u"front/left", u"front/right", u"front/nut"};
    car.configurations[1].suppressed = {u"rear"};
    car.configurations[1].placements = {{u"front/left", moved(0, 0, 9)}};
    car.configurations[1].displayStates[0].shown = {u"front/right"};
    return builder.take();
}

TEST(Scenes, LayDisplayStateOverConfigurationOverSubAssemblyOverComponent) {
    ExportRun run(carModel());
    const nlohmann::json gltf = run.json();
    EXPECT_THAT(sceneTexts(gltf),
                ElementsAre("Full - All = car[front[left:0 right nut] rear[left:1 right:2 nut]]",
                            "Full - Rear only = car[front[left right nut] rear[left:3 right:4 nut]]",
                            "Bare - All = car[front[left:5 right:6 nut] rear[left:7 right nut]]"))
        << "what hides or suppresses an assembly component leaves its children to their own flags";
    EXPECT_EQ(gltf["scene"], 1) << "counts configurations instead of scenes";
    const auto translationOf = [&](std::size_t node) {
        const auto& matrix = gltf["nodes"][node]["matrix"];
        return std::vector<double>{matrix[12], matrix[13], matrix[14]};
    };
    EXPECT_THAT(translationOf(2), ElementsAre(0, 3, 0)) << "placed by the sub-assembly's own configuration";
    EXPECT_THAT(translationOf(6), ElementsAre(0, 3, 0)) << "relative to a parent that is turned";
    EXPECT_THAT(translationOf(20), ElementsAre(0, 0, 9)) << "placed by the opened assembly's configuration";
}

} // namespace
} // namespace orvane
