#pragma once

#include <string>
#include <vector>

namespace orvane {

/// What a person may have to be told of an export that itself stays silent: one line of UTF-8 each, without a
/// full stop.
struct ExportReport {
    std::vector<std::string> warnings; ///< the result is complete, but not in every point what was asked for
    std::vector<std::string> errors;   ///< there is no result
    std::string writtenFile;           ///< the target, once it is complete; empty until then

    bool hasFailed() const { return !errors.empty(); }
};

} // namespace orvane
