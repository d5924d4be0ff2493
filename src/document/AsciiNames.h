#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// A text of the host as the narrow text that is written: letters with marks become the plain letter, some
/// signs a letter, a digit or `_`, quotation marks, `;`, `:`, `\` and `/` become `_`. Every other UTF-16 unit
/// is cut to its low 8 bits, so that ASCII passes through. The result is no UTF-8, and holds no quotation
/// mark unless a cut makes one (docs/output-format.md, "Bytes in texts").
std::string toAsciiName(std::u16string_view text);

/// The same for a text in which `/` separates levels: `/` stays as it is.
std::string toAsciiPath(std::u16string_view text);

/// Replaces each of the characters \ / " ' * : $ and the blank by `_`, in place, for the name of a file.
void fileSafeName(std::string& name);

} // namespace orvane
