#include "support/ExportRun.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

/// What each scene says of its configuration's properties, by the scene's name.
std::map<std::string, std::string> propertiesByScene(Model model) {
    std::map<std::string, std::string> texts;
    const nlohmann::json gltf = ExportRun(std::move(model)).json();
    for (const auto& scene : gltf["scenes"]) {
        texts[scene["name"]] =
            scene["extensions"].value("Tessaforge_custom_properties", nlohmann::json()).dump();
    }
    return texts;
}

TEST(CustomProperties, AreThoseOfTheScenesOwnConfiguration) {
    const auto configurations = [] {
        std::vector<ConfigurationRecord> made = {ModelBuilder::configuration(u"Long", {u"A", u"B"}),
                                                 ModelBuilder::configuration(u"Bare", {u"A"}),
                                                 ModelBuilder::configuration(u"Short", {u"A"})};
        made[0].customProperties = {{u"Länge: \"x\"", u"1/2\"", 3},
                                    {u"b", u"0.5", 5},
                                    {u"a", u"Yes", 11},
                                    {u"d", u"", 30},
                                    {u"c", u"2024\\01", 64},
                                    {u"", u"7", 7},
                                    {u"negative", u"-", -2147483647},
                                    {u"a", u"again", 30}};
        made[2].customProperties = {{u"Length", u"1", 5}};
        return made;
    };
    const std::string longOne =
        R"({"custom_properties":[{"name":"Lange_ _x_","type":"Number","value":"1_2_"},)"
        R"({"name":"b","type":"Double","value":"0.5"},{"name":"a","type":"YesNo","value":"Yes"},)"
        R"({"name":"d","type":"Text","value":""},{"name":"c","type":"Date","value":"2024_01"},)"
        R"({"name":"","type":"Unknown","value":"7"},{"name":"negative","type":"Unknown","value":"-"},)"
        R"({"name":"a","type":"Text","value":"again"}]})";
    const std::map<std::string, std::string> expected = {
        {"Long - A", longOne},
        {"Long - B", longOne},
        {"Bare - A", "null"},
        {"Short - A", R"({"custom_properties":[{"name":"Length","type":"Double","value":"1"}]})"}};

    ModelBuilder part;
    part.part(u"p.tfgprt").configurations = configurations();
    EXPECT_EQ(propertiesByScene(part.take()), expected);

    ModelBuilder assembly;
    ModelDocument& top = assembly.assembly(u"top.tfgasm");
    top.configurations = configurations();
    ModelDocument& below = assembly.part(u"p.tfgprt");
    below.configurations[0].customProperties = {{u"of the part", u"not asked for", 30}};
    top.components = {ModelBuilder::component(u"p", &below)};
    EXPECT_EQ(propertiesByScene(assembly.take()), expected);
}

} // namespace
} // namespace orvane
