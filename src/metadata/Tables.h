#pragma once

#include "document/GltfRecords.h"
#include "host/HostModelDoc.h"

#include <optional>
#include <vector>

namespace orvane {

/// The design table of a document; nothing when there is none, or when nothing could be read.
std::optional<ExportedTable> readDesignTable(HostModelDoc& document);

/// Appends a record for each annotation of the document that is a table, also for one without rows.
void readGeneralTables(HostModelDoc& document, std::vector<ExportedTable>& tables);

} // namespace orvane

namespace orvane::metadata {

/// The contents of a design table, which is attached for as long as that takes. A row has one cell more than
/// there are columns. No rows when the table cannot be attached, or has no rows or no columns.
ExportedTable readTable(HostDesignTable& table);

/// The contents of a general table; empty when it has no columns or no rows.
ExportedTable readTable(const HostGeneralTable& table);

} // namespace orvane::metadata
