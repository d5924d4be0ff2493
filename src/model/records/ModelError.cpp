#include "model/records/ModelError.h"

namespace orvane {

namespace {

std::string utf8Of(const std::filesystem::path& file) {
    const std::u8string text = file.generic_u8string();
    return {text.begin(), text.end()};
}

} // namespace

ModelError::ModelError(const std::filesystem::path& file, const std::string& place, const std::string& found,
                       const std::string& expected)
    : std::runtime_error(utf8Of(file) + ": " + (place.empty() ? "" : place + ": ") + "found " + found +
                         ", expected " + expected) {}

} // namespace orvane
