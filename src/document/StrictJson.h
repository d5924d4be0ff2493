#pragma once

#include "document/GltfDocument.h"

#include <string>
#include <vector>

namespace orvane {

/// Why strict readers of JSON will refuse the text of a document: a sentence for each reason, with the first
/// text or record that gives it; none when they will take it. The text is that of `writeDocument`, decoded as
/// UTF-8. Everything that is written has to be settled, the names of pictures too.
///
/// A quotation mark counts as a reason wherever no backslash escapes it. What follows it could go on as JSON
/// by chance, and a reader would take the file for another one than was meant.
std::vector<std::string> reasonsOfStrictReaders(const GltfDocument& document);

} // namespace orvane
