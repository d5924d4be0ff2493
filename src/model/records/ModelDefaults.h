#pragma once

#include "model/records/ModelRecords.h"

/// What a document has where its file says nothing.
namespace orvane {

/// `Default`, with the one display state `Display State 1`.
ConfigurationRecord defaultConfiguration();

/// `Body1`, `Body2` … for the positions 0, 1 ….
std::u16string defaultBodyName(std::size_t position);

/// Sets the title, and the root component's name, which is the title without its extension.
void setTitle(ModelDocument& document, std::u16string title);

} // namespace orvane
