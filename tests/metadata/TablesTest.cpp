#include "metadata/Tables.h"

#include "support/ExportRun.h"

#include <gmock/gmock.h>
#include <limits>

namespace orvane::metadata {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A design table whose every text says where it stands, and which holds no text for column 3.
class GivenDesignTable : public HostDesignTable {
public:
    bool attach() override {
        calls += "attach ";
        return canAttach;
    }
    void detach() override { calls += "detach "; }
    std::int32_t totalRowCount() const override { return rows; }
    std::int32_t totalColumnCount() const override { return columns; }
    std::int32_t headerRow() const override { return startRow; }
    std::int32_t firstColumn() const override { return startColumn; }
    std::optional<std::u16string> tableTitle() const override { return title; }
    std::optional<std::u16string> headerText(std::int32_t column) const override {
        return column == 3 ? std::nullopt : std::optional(u"H" + number(column));
    }
    std::optional<std::u16string> entryText(std::int32_t row, std::int32_t column) const override {
        return column == 3 ? std::nullopt : std::optional(number(row) + u"." + number(column));
    }

    bool canAttach = true;
    std::int32_t rows = 3, columns = 4, startRow = 0, startColumn = 0;
    std::optional<std::u16string> title;
    std::string calls;

private:
    static std::u16string number(std::int32_t value) {
        const std::string digits = std::to_string(value);
        return {digits.begin(), digits.end()};
    }
};

TEST(DesignTable, HasOneCellMoreThanHeadersInEachRow) {
    const auto host = makeHostObject<GivenDesignTable>();
    const ExportedTable table = readTable(*host);
    EXPECT_EQ(table.title, "");
    EXPECT_THAT(table.headers, ElementsAre("H0", "H1", "H2", ""));
    ASSERT_THAT(table.rows, SizeIs(3));
    EXPECT_THAT(table.rows[0], ElementsAre("0.0", "0.1", "0.2", "", "0.4"));
    EXPECT_THAT(table.rows[2], ElementsAre("2.0", "2.1", "2.2", "", "2.4"));
    EXPECT_EQ(host->calls, "attach detach ");
}

TEST(DesignTable, StartsWhereTheHostSays) {
    const auto host = makeHostObject<GivenDesignTable>();
    host->rows = 2;
    host->columns = 1;
    host->startRow = 5;
    host->startColumn = -1;
    host->title = u"Größen / \"alle\"";
    const ExportedTable table = readTable(*host);
    EXPECT_EQ(table.title, "GroBen _ _alle_");
    EXPECT_THAT(table.headers, ElementsAre("H-1"));
    EXPECT_THAT(table.rows, ElementsAre(ElementsAre("5.-1", "5.0"), ElementsAre("6.-1", "6.0")));
}

TEST(DesignTable, IsDetachedWithoutARowWhenThereIsNothingToRead) {
    const auto isLeftEmpty = [](void (*change)(GivenDesignTable&)) {
        const auto host = makeHostObject<GivenDesignTable>();
        host->title = u"T";
        change(*host);
        const ExportedTable table = readTable(*host);
        return table.rows.empty() && table.headers.empty() && host->calls == "attach detach ";
    };
    EXPECT_TRUE(isLeftEmpty([](GivenDesignTable& table) { table.canAttach = false; }));
    EXPECT_TRUE(isLeftEmpty([](GivenDesignTable& table) { table.rows = 0; }));
    EXPECT_TRUE(isLeftEmpty([](GivenDesignTable& table) { table.columns = 0; }));
    EXPECT_TRUE(isLeftEmpty([](GivenDesignTable& table) { table.rows = -1; }));
}

/// A part with nothing but tables, in two scenes.
class TableExport : public testing::Test {
protected:
    TableExport() { part.configurations = {ModelBuilder::configuration(u"One", {u"A", u"B"})}; }

    nlohmann::json extensions() {
        return ExportRun(builder.take()).json().value("extensions", nlohmann::json::object());
    }

    ModelBuilder builder;
    ModelDocument& part = builder.document(DocumentKind::part, u"p.tfgprt");
};

TEST_F(TableExport, HoldsTheDesignTableOnce) {
    part.designTable = TableRecord{.title = u"Sizes",
                                   .headers = {u"Name", u"Länge"},
                                   .rows = {{u"S", u"1", u"beyond", u"not read"}, {u"M"}, {u"L", {}}}};
    EXPECT_EQ(extensions().dump(),
              R"({"Tessaforge_design_table":{"headers":["Name","Lange"],"title":"Sizes",)"
              R"("values":[["S","1","beyond"],["M","",""],["L","",""]]}})");
}

TEST_F(TableExport, LeavesNoTraceOfADesignTableThatCannotBeAttached) {
    part.designTable = TableRecord{.headers = {u"H"}, .rows = {{u"x"}}, .attach = false};
    EXPECT_THAT(extensions(), IsEmpty());
}

TEST_F(TableExport, TakesTextsBeyondTheHostsTableAsEmpty) {
    constexpr std::int32_t kLast = std::numeric_limits<std::int32_t>::max();
    part.designTable =
        TableRecord{.headers = {u"H"}, .rows = {{u"x"}, {u"y"}}, .startRow = kLast, .startColumn = kLast};
    EXPECT_EQ(extensions()["Tessaforge_design_table"]["values"].dump(), R"([["",""],["",""]])");
}

TEST_F(TableExport, HoldsEveryGeneralTableOnce) {
    part.annotations = {{.type = 5},
                        {.type = 14,
                         .table = TableRecord{.title = u"Points",
                                              .headers = {u"A", {}},
                                              .rows = {{u"1", u"2", u"not read"}, {{}, u"4"}}}},
                        {.type = 14},
                        {.type = 6, .table = TableRecord{.headers = {u"of another kind"}, .rows = {{u"x"}}}},
                        {.type = 14, .table = TableRecord{.title = u"without rows", .headers = {u"A"}}},
                        {.type = 14, .table = TableRecord{.title = u"without columns", .rows = {{u"x"}}}},
                        {.type = 14, .table = TableRecord{.headers = {u"Last"}, .rows = {{u"z"}}}}};
    const nlohmann::json written = extensions();
    const std::string empty = R"({"headers":[],"title":"","values":[]})";
    EXPECT_EQ(written.size(), 1u);
    EXPECT_EQ(written["Tessaforge_general_tables"]["tables"].dump(),
              R"([{"headers":["A",""],"title":"Points","values":[["1","2"],["","4"]]},)" + empty + "," +
                  empty + R"(,{"headers":["Last"],"title":"","values":[["z"]]}])");
}

TEST(Tables, AreTakenFromTheOpenedDocumentAlone) {
    ModelBuilder builder;
    ModelDocument& assembly = builder.assembly(u"top.tfgasm");
    ModelDocument& below = builder.part(u"below.tfgprt");
    below.designTable = TableRecord{.headers = {u"below"}, .rows = {{u"x"}}};
    below.annotations = {{.type = 14, .table = below.designTable}};
    assembly.components = {ModelBuilder::component(u"below", &below)};
    assembly.designTable = TableRecord{.title = u"top", .headers = {u"top"}, .rows = {{u"y"}}};
    assembly.annotations = {{.type = 14, .table = assembly.designTable}};
    const nlohmann::json written = ExportRun(builder.take()).json()["extensions"];
    EXPECT_EQ(written["Tessaforge_design_table"]["headers"].dump(), R"(["top"])");
    EXPECT_EQ(written["Tessaforge_general_tables"]["tables"].size(), 1u);
    EXPECT_EQ(written["Tessaforge_general_tables"]["tables"][0]["title"], "top");
}

} // namespace
} // namespace orvane::metadata
