#include "model/json/TableJson.h"

#include "model/json/JsonCursor.h"

namespace orvane::json {

namespace {

std::optional<std::u16string> readCell(const JsonCursor& value) {
    std::optional<std::u16string> text;
    if (value.isNull()) {
        return text;
    }
    if (!value.isText()) {
        value.mismatch("a text or null");
    }
    readValue(value, text);
    return text;
}

using Row = std::vector<std::optional<std::u16string>>;

Row readRow(const JsonCursor& list) {
    Row row;
    list.forEachItem([&](const JsonCursor& cell) { row.push_back(readCell(cell)); });
    return row;
}

std::vector<Row> readRows(const JsonCursor& list) {
    std::vector<Row> rows;
    list.forEachItem([&](const JsonCursor& row) { rows.push_back(readRow(row)); });
    return rows;
}

/// The keys of every table, and those that this one has besides.
template <typename... Read>
void readTable(const JsonCursor& value, TableRecord& table, const JsonKey<Read>&... more) {
    value.readObject(key("title", table.title, readCell), key("headers", table.headers, readRow),
                     key("rows", table.rows, readRows), more...);
}

} // namespace

TableRecord readDesignTable(const JsonCursor& value) {
    TableRecord table;
    readTable(value, table, key("startRow", table.startRow), key("startColumn", table.startColumn),
              key("attach", table.attach));
    return table;
}

void readValue(const JsonCursor& value, AnnotationRecord& annotation) {
    value.readObject(key("type", annotation.type), key("table", [&](const JsonCursor& table) {
                         readTable(table, annotation.table.emplace());
                     }));
    if (annotation.type != kTableAnnotationType) {
        annotation.table.reset();
    }
}

} // namespace orvane::json
