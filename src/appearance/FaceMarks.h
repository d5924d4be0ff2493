#pragma once

#include "document/ExportReport.h"
#include "host/HostFace.h"

#include <cstdint>

namespace orvane::appearance {

/// The mark of a face that has none.
inline constexpr std::int32_t kNoFaceMark = -1;

/// The mark by which a face is known: its user value, once its low half holds the pattern 0xFACE. A face
/// without one gets a new mark when `create` is set; otherwise the answer is `kNoFaceMark`. Marks count up
/// through the process and last as long as the face's document is open. From the 32,769th on they are
/// negative, which everyone who reads them takes for no mark.
std::int32_t faceMark(HostFace& face, bool create);

/// Tells a person that a face lost its appearance for want of a mark, if `mark` is one that is none.
void reportLostMark(std::int32_t mark, ExportReport& report);

} // namespace orvane::appearance
