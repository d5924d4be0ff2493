#pragma once

#include "model/records/MeshingOptions.h"

#include <optional>
#include <string_view>

namespace orvane::cli {

/// The most processes that `--jobs` takes.
inline constexpr unsigned kMostJobs = 1024;

/// A deflection as a person writes it: `0.1mm`, `0.0001m`, a plain number of metres, or a share of a part's
/// box of at most `100%`. Numbers have a decimal point whatever the locale is, and blanks may stand before
/// the unit. Nothing for any other text, for numbers that are not above 0 and for lengths without an end.
std::optional<Deflection> deflectionFromText(std::string_view text);

/// An angle in degrees, above 0 and at most 180; nothing for any other text.
std::optional<double> angleFromText(std::string_view text);

/// A whole number from 1 to `kMostJobs`; nothing for any other text.
std::optional<unsigned> jobsFromText(std::string_view text);

} // namespace orvane::cli
