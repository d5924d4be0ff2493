#include "metadata/Tables.h"

#include "document/AsciiNames.h"

#include <cstdint>
#include <string>
#include <utility>

namespace orvane::metadata {

namespace {

/// How the positions in a record and those in the host's table go together.
struct TableShape {
    std::int32_t rows;
    std::int32_t columns;
    std::int32_t cellsPerRow;
    std::int32_t startRow;
    std::int32_t startColumn;
};

std::string narrow(const std::optional<std::u16string>& text) {
    return text ? toAsciiName(*text) : std::string();
}

/// A start near the end of the range leads to positions that no host has, and so to empty texts.
std::int32_t positionAt(std::int32_t start, std::int32_t offset) {
    return static_cast<std::int32_t>(std::int64_t{start} + offset);
}

ExportedTable readContents(const auto& table, const TableShape& shape) {
    ExportedTable read;
    read.title = narrow(table.tableTitle());
    for (std::int32_t column = 0; column < shape.columns; ++column) {
        read.headers.push_back(narrow(table.headerText(positionAt(shape.startColumn, column))));
    }
    for (std::int32_t row = 0; row < shape.rows; ++row) {
        std::vector<std::string>& cells = read.rows.emplace_back();
        for (std::int32_t column = 0; column < shape.cellsPerRow; ++column) {
            cells.push_back(narrow(
                table.entryText(positionAt(shape.startRow, row), positionAt(shape.startColumn, column))));
        }
    }
    return read;
}

ExportedTable readAttached(const HostDesignTable& table) {
    const std::int32_t rows = table.totalRowCount();
    const std::int32_t columns = table.totalColumnCount();
    const std::int32_t startRow = table.headerRow();
    const std::int32_t startColumn = table.firstColumn();
    if (rows < 1 || columns < 1) {
        return {};
    }
    // One cell beyond the last header (docs/output-format.md, "Extension objects").
    return readContents(table, {rows, columns, columns + 1, startRow, startColumn});
}

} // namespace

ExportedTable readTable(HostDesignTable& table) {
    ExportedTable read;
    if (table.attach()) {
        read = readAttached(table);
    }
    table.detach();
    return read;
}

ExportedTable readTable(const HostGeneralTable& table) {
    const std::int32_t columns = table.columnCount();
    if (columns <= 0) {
        return {};
    }
    const std::int32_t rows = table.rowCount();
    return rows > 0 ? readContents(table, {rows, columns, columns, 0, 0}) : ExportedTable{};
}

} // namespace orvane::metadata

namespace orvane {

std::optional<ExportedTable> readDesignTable(HostModelDoc& document) {
    const HostRef<HostDesignTable> table = document.designTable();
    if (!table) {
        return std::nullopt;
    }
    ExportedTable read = metadata::readTable(*table);
    return read.rows.empty() ? std::nullopt : std::optional(std::move(read));
}

void readGeneralTables(HostModelDoc& document, std::vector<ExportedTable>& tables) {
    const HostRef<HostDocExtension> extension = document.extension();
    if (!extension || extension->annotationCount() <= 0) {
        return;
    }
    for (const HostRef<HostAnnotation>& annotation : extension->annotations()) {
        if (!annotation || annotation->annotationType() != kTableAnnotation) {
            continue;
        }
        if (const auto table = inRole<HostGeneralTable>(annotation->specificAnnotation())) {
            tables.push_back(metadata::readTable(*table));
        }
    }
}

} // namespace orvane
