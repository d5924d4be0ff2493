#pragma once

#include <string>
#include <unordered_set>
#include <vector>

namespace orvane {

/// What a person may have to be told of an export that itself stays silent: one line of UTF-8 each, without a
/// full stop.
struct ExportReport {
    std::vector<std::string> warnings; ///< the result is complete, but not in every point what was asked for
    std::vector<std::string> errors;   ///< there is no result
    std::string writtenFile;           ///< the target, once it is complete; empty until then

    /// Adds a warning unless the same one is there already.
    void warn(const std::string& warning) {
        if (warned_.insert(warning).second) {
            warnings.push_back(warning);
        }
    }

    bool hasFailed() const { return !errors.empty(); }

private:
    std::unordered_set<std::string> warned_;
};

} // namespace orvane
