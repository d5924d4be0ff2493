#pragma once

#include "document/GltfRecords.h"
#include "document/TextStream.h"

#include <map>
#include <span>
#include <string>

/// Writers of the blocks inside extension objects. Each appends to the stream and ends its own last line.
namespace orvane::document {

/// `"custom_properties"` of a scene.
void writeCustomProperties(TextStream& out, std::span<const CustomProperty> properties);

/// `"tables"` of the document: all general tables, each with as many cells in a row as it has headers.
void writeGeneralTables(TextStream& out, std::span<const ExportedTable> tables);

/// The design table: as many cells in every row as in its first one.
void writeDesignTable(TextStream& out, const ExportedTable& table);

/// The comments of a node, as the list in `"comments"`.
void writeNodeComments(TextStream& out, std::span<const GltfComment> comments);

/// The display states of a node's component, by name.
void writeComponentDisplayStates(TextStream& out, const std::map<std::string, DisplayStateInfo>& states);

} // namespace orvane::document
