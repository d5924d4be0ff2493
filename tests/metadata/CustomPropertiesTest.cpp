#include "support/ExportRun.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(CustomProperties, AreThoseOfTheScenesOwnConfiguration) {
    ModelBuilder builder;
    ModelDocument& part = builder.part(u"p.tfgprt");
    part.configurations = {ModelBuilder::configuration(u"Long", {u"A", u"B"}),
                           ModelBuilder::configuration(u"Bare", {u"A"})};
    part.configurations[0].customProperties = {{u"b", u"1/2\"", 3},          {u"Länge: \"x\"", u"0.5", 5},
                                               {u"a", u"Yes", 11},           {u"d", u"", 30},
                                               {u"c", u"2024\\01", 64},      {u"", u"7", 7},
                                               {u"a", u"again", -2147483647}};
    const nlohmann::json gltf = ExportRun(builder.take()).json();
    const auto propertiesOf = [&](std::size_t scene) {
        return gltf["scenes"][scene]["extensions"].value("Tessaforge_custom_properties", nlohmann::json());
    };
    EXPECT_EQ(propertiesOf(0)["custom_properties"].dump(),
              R"([{"name":"b","type":"Number","value":"1_2_"},)"
              R"({"name":"Lange_ _x_","type":"Double","value":"0.5"},)"
              R"({"name":"a","type":"YesNo","value":"Yes"},{"name":"d","type":"Text","value":""},)"
              R"({"name":"c","type":"Date","value":"2024_01"},{"name":"","type":"Unknown","value":"7"},)"
              R"({"name":"a","type":"Unknown","value":"again"}])");
    EXPECT_EQ(propertiesOf(1), propertiesOf(0));
    EXPECT_TRUE(propertiesOf(2).is_null());
}

} // namespace
} // namespace orvane
