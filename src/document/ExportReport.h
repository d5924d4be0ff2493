#pragma once

#include <string>
#include <string_view>
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

    /// Adds an error. Where there is no memory left to hold it, the export has failed all the same.
    void fail(std::string_view error) noexcept {
        try {
            errors.emplace_back(error);
        } catch (...) {
            hasUntoldError_ = true;
        }
    }

    bool hasFailed() const { return !errors.empty() || hasUntoldError_; }
    /// What to tell a person of an export that has failed.
    std::string_view firstError() const {
        return errors.empty() ? std::string_view(kOutOfMemory) : errors.front();
    }

    static constexpr const char* kOutOfMemory = "there is not enough memory for this model";

private:
    bool hasUntoldError_ = false;
    std::unordered_set<std::string> warned_;
};

} // namespace orvane
