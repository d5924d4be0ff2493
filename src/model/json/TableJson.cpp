#include "model/json/TableJson.h"

#include "host/HostAnnotation.h"
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

std::vector<std::optional<std::u16string>> readRow(const JsonCursor& list) {
    std::vector<std::optional<std::u16string>> row;
    list.forEachItem([&](const JsonCursor& cell) { row.push_back(readCell(cell)); });
    return row;
}

void readTableContent(const JsonCursor& value, TableRecord& table) {
    value.with("title", [&](const JsonCursor& title) { table.title = readCell(title); });
    value.with("headers", [&](const JsonCursor& headers) { table.headers = readRow(headers); });
    value.with("rows", [&](const JsonCursor& rows) {
        rows.forEachItem([&](const JsonCursor& row) { table.rows.push_back(readRow(row)); });
    });
}

} // namespace

void readDesignTable(const JsonCursor& value, TableRecord& table) {
    value.expectObject({"title", "headers", "rows", "startRow", "startColumn", "attach"});
    readTableContent(value, table);
    value.read("startRow", table.startRow);
    value.read("startColumn", table.startColumn);
    value.read("attach", table.attach);
}

void readValue(const JsonCursor& value, AnnotationRecord& annotation) {
    value.expectObject({"type", "table"});
    annotation.type = kTableAnnotation;
    value.read("type", annotation.type);
    value.with("table", [&](const JsonCursor& content) {
        content.expectObject({"title", "headers", "rows"});
        readTableContent(content, annotation.table.emplace());
    });
    if (annotation.type != kTableAnnotation) {
        annotation.table.reset();
    }
}

} // namespace orvane::json
