#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

namespace orvane {

/// A model that cannot be read. `what()` is one line of UTF-8 that names the file, the place in it (a JSON
/// path, a line number, or nothing for the file as a whole), what was found and what was expected.
class ModelError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;

    /// `FILE: PLACE: found FOUND, expected EXPECTED`, without `PLACE: ` where that is empty.
    ModelError(const std::filesystem::path& file, const std::string& place, const std::string& found,
               const std::string& expected);
};

} // namespace orvane
