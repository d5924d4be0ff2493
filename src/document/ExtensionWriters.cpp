#include "document/ExtensionWriters.h"

#include <string_view>

namespace orvane::document {

namespace {

std::string_view propertyTypeName(std::int32_t type) {
    switch (type) {
    case 3:
        return "Number";
    case 5:
        return "Double";
    case 11:
        return "YesNo";
    case 30:
        return "Text";
    case 64:
        return "Date";
    default:
        return "Unknown";
    }
}

std::string_view displayModeName(std::int32_t mode) {
    static constexpr std::string_view kNames[] = {
        "wireframe",      "hidden_greyed", "hidden",  "shaded", "faceted_wireframe", "faceted_hidden_greyed",
        "faceted_hidden", "shaded_edges",  "default",
    };
    return mode >= 0 && mode < static_cast<std::int32_t>(std::size(kNames)) ? kNames[mode] : "unknown";
}

std::string_view commaUnlessLast(std::size_t position, std::size_t count) {
    return position + 1 < count ? "," : "";
}

void writeHeaders(TextStream& out, std::string_view indent, const ExportedTable& table) {
    for (std::size_t i = 0; i < table.headers.size(); ++i) {
        out << indent << "\"" << table.headers[i] << "\"" << commaUnlessLast(i, table.headers.size()) << "\n";
    }
}

/// Writes all rows with `cellCount` cells each; a cell that a row lacks is empty.
void writeRows(TextStream& out, std::string_view indent, const ExportedTable& table, std::size_t cellCount) {
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        const std::vector<std::string>& row = table.rows[i];
        out << indent << "[ ";
        for (std::size_t cell = 0; cell < cellCount; ++cell) {
            out << (cell > 0 ? ", " : "") << "\"" << (cell < row.size() ? row[cell] : std::string()) << "\"";
        }
        out << " ]" << commaUnlessLast(i, table.rows.size()) << "\n";
    }
}

} // namespace

void writeCustomProperties(TextStream& out, std::span<const CustomProperty> properties) {
    out << "\t\t\t\t\t\"custom_properties\": [\n";
    for (std::size_t i = 0; i < properties.size(); ++i) {
        const CustomProperty& property = properties[i];
        out << "\t\t\t\t\t\t{ \"name\": \"" << property.name << "\", \"value\": \"" << property.value
            << "\", \"type\": \"" << propertyTypeName(property.type) << "\" }"
            << commaUnlessLast(i, properties.size()) << "\n";
    }
    out << "\t\t\t\t\t]\n";
}

void writeGeneralTables(TextStream& out, std::span<const ExportedTable> tables) {
    out << "\t\t\t\"tables\": [\n";
    for (std::size_t i = 0; i < tables.size(); ++i) {
        const ExportedTable& table = tables[i];
        out << "\t\t\t\t{\n"
            << "\t\t\t\t\t\"title\": \"" << table.title << "\",\n";
        out << "\t\t\t\t\t\"headers\": [\n";
        writeHeaders(out, "\t\t\t\t\t\t", table);
        out << "\t\t\t\t\t],\n";
        out << "\t\t\t\t\t\"values\": [\n";
        writeRows(out, "\t\t\t\t\t\t", table, table.headers.size());
        out << "\t\t\t\t\t]\n";
        out << "\t\t\t\t}" << commaUnlessLast(i, tables.size()) << "\n";
    }
    out << "\n\t\t\t]\n";
}

void writeDesignTable(TextStream& out, const ExportedTable& table) {
    out << "\t\t\t\"title\": \"" << table.title << "\",\n";
    out << "\t\t\t\"headers\": [\n";
    writeHeaders(out, "\t\t\t\t", table);
    out << "\t\t\t],\n";
    out << "\t\t\t\"values\": [\n";
    writeRows(out, "\t\t\t\t", table, table.rows.empty() ? 0 : table.rows.front().size());
    out << "\t\t\t]\n";
}

void writeNodeComments(TextStream& out, std::span<const GltfComment> comments) {
    out << "\t\t\t\t\t\"comments\" : [\n";
    for (std::size_t i = 0; i < comments.size(); ++i) {
        out << "\t\t\t\t\t{ \"name\": \"" << comments[i].name << "\", \"text\": \"" << comments[i].text
            << "\" }" << commaUnlessLast(i, comments.size()) << "\n";
    }
    out << "\t\t\t\t\t]\n";
}

void writeComponentDisplayStates(TextStream& out, const std::map<std::string, DisplayStateInfo>& states) {
    bool isFirst = true;
    for (const auto& [name, state] : states) {
        out << (isFirst ? "" : ",\n");
        isFirst = false;
        out << "\t\t\t\t\t\"" << name << "\": { "
            << "\"visible\":" << (state.hidden == 1 ? 0 : 1) << ", "
            << "\"transparency\":" << (state.transparent == 0 ? 0.75 : 0.0) << ", ";
        if (state.appearance > -1) {
            out << "\"appearance\":" << state.appearance << ", ";
        }
        out << "\"display_mode\":"
            << "\"" << displayModeName(state.displayMode) << "\""
            << " }\n";
    }
}

} // namespace orvane::document
