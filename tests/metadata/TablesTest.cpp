#include "metadata/Tables.h"

#include "support/ExportRun.h"

#include <gmock/gmock.h>
#include <limits>

namespace orvane::metadata {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A design table whose every text says where it stands.
class GivenDesignTable : public HostDesignTable {
public:
    bool attach() override {
        calls += "attach ";
        return canAttach;
    }
    void detach() override { calls += "detach "; }
    std::int32_t totalRowCount() const override { return rows; }
    std::int32_t totalColumnCount() const override { return columns; }
    std::int32_t headerRow() const override { return 5; }
    std::int32_t firstColumn() const override { return -1; }
    std::optional<std::u16string> tableTitle() const override { return u"Größen / \"alle\""; }
    std::optional<std::u16string> headerText(std::int32_t column) const override {
        return u"H" + number(column);
    }
    std::optional<std::u16string> entryText(std::int32_t row, std::int32_t column) const override {
        return number(row) + u"." + number(column);
    }

    bool canAttach = true;
    std::int32_t rows = 2, columns = 1;
    std::string calls;

private:
    static std::u16string number(std::int32_t value) {
        const std::string digits = std::to_string(value);
        return {digits.begin(), digits.end()};
    }
};

TEST(DesignTable, StartsWhereTheHostSaysAndHasOneCellMoreThanHeadersInEachRow) {
    const auto host = makeHostObject<GivenDesignTable>();
    const ExportedTable table = readTable(*host);
    EXPECT_EQ(table.title, "GroBen _ _alle_");
    EXPECT_THAT(table.headers, ElementsAre("H-1"));
    EXPECT_THAT(table.rows, ElementsAre(ElementsAre("5.-1", "5.0"), ElementsAre("6.-1", "6.0")));
    EXPECT_EQ(host->calls, "attach detach ");
}

TEST(DesignTable, IsDetachedWithoutARowWhenThereIsNothingToRead) {
    for (int i = 0; i < 3; ++i) {
        const auto host = makeHostObject<GivenDesignTable>();
        host->canAttach = i != 0;
        host->rows = i == 1 ? -1 : 2;
        host->columns = i == 2 ? 0 : 1;
        const ExportedTable table = readTable(*host);
        EXPECT_TRUE(table.rows.empty() && table.headers.empty()) << i;
        EXPECT_EQ(host->calls, "attach detach ") << i;
    }
}

/// A part with nothing but tables.
class TableExport : public testing::Test {
protected:
    nlohmann::json extensions() {
        return ExportRun(builder.take()).json().value("extensions", nlohmann::json::object());
    }

    ModelBuilder builder;
    ModelDocument& part = builder.document(DocumentKind::part, u"p.tfgprt");
};

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

TEST_F(TableExport, HoldsEveryGeneralTableAsWideAsItsHeaders) {
    const TableRecord whole = {.headers = {u"A", {}}, .rows = {{u"1", u"2", u"not read"}, {{}, u"4"}}};
    part.annotations = {{.type = 5},
                        {.type = 6, .table = whole},
                        {.type = 14, .table = whole},
                        {.type = 14},
                        {.type = 14, .table = TableRecord{.title = u"without rows", .headers = {u"A"}}},
                        {.type = 14, .table = TableRecord{.title = u"without columns", .rows = {{u"x"}}}},
                        {.type = 14, .table = TableRecord{.headers = {u"Last"}, .rows = {{u"z"}}}}};
    EXPECT_EQ(extensions()["Tessaforge_general_tables"]["tables"].dump(),
              R"([{"headers":["A",""],"title":"","values":[["1","2"],["","4"]]},)"
              R"({"headers":[],"title":"","values":[]},{"headers":[],"title":"","values":[]},)"
              R"({"headers":["Last"],"title":"","values":[["z"]]}])");
}

TEST(Tables, AreTakenFromTheOpenedDocumentAlone) {
    ModelBuilder builder;
    ModelDocument& assembly = builder.assembly(u"top.tfgasm");
    ModelDocument& below = builder.part(u"below.tfgprt");
    below.designTable = TableRecord{.headers = {u"below"}, .rows = {{u"x"}}};
    below.annotations = {{.type = 14, .table = below.designTable}};
    assembly.components = {ModelBuilder::component(u"below", &below)};
    EXPECT_FALSE(ExportRun(builder.take()).json().contains("extensions"));
}

} // namespace
} // namespace orvane::metadata
