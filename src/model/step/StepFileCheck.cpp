#include "model/step/StepFileCheck.h"

#include "model/records/ModelError.h"

#include <algorithm>
#include <fstream>
#include <string>
#include <string_view>

namespace orvane::step {

namespace {

constexpr std::string_view kFirstWord = "ISO-10303-21;";
constexpr std::string_view kLastWord = "END-ISO-10303-21";

std::string inQuotes(std::string_view bytes) {
    std::string out = "'";
    for (const char c : bytes) {
        out += c >= ' ' && c <= '~' ? c : '.';
    }
    return out + "'";
}

std::string readAt(std::ifstream& stream, std::streamoff offset, std::size_t size) {
    std::string bytes(size, '\0');
    stream.clear();
    stream.seekg(offset);
    stream.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

/// Looks from the end of the file: the word stands in its last bytes, unless a signature or a remark follows
/// it.
bool holdsLastWord(std::ifstream& stream, std::streamoff size) {
    constexpr std::streamoff kBlock = 1 << 16;
    const auto overlap = static_cast<std::streamoff>(kLastWord.size());
    for (std::streamoff end = size; end > 0; end -= kBlock) {
        const std::streamoff begin = std::max<std::streamoff>(0, end - kBlock);
        const auto length = static_cast<std::size_t>(std::min(size, end + overlap) - begin);
        if (readAt(stream, begin, length).find(kLastWord) != std::string::npos) {
            return true;
        }
    }
    return false;
}

} // namespace

void checkStepFile(const std::filesystem::path& file) {
    std::error_code error;
    std::ifstream stream(file, std::ios::binary);
    if (!stream || !std::filesystem::is_regular_file(file, error)) {
        throw ModelError(file.string() + ": found no file that can be opened, expected a STEP file");
    }
    std::string start = readAt(stream, 0, 4096);
    start.erase(0, start.starts_with("\xEF\xBB\xBF") ? 3 : 0);
    while (start.starts_with("/*") && start.find("*/") != std::string::npos) {
        start.erase(0, start.find("*/") + 2);
        start.erase(0, start.find_first_not_of(" \t\r\n"));
    }
    start.erase(0, start.find_first_not_of(" \t\r\n"));
    if (!start.starts_with(kFirstWord)) {
        const std::string found =
            start.empty() ? "an empty file" : inQuotes(std::string_view(start).substr(0, 16));
        throw ModelError(file.string() + ": found " + found +
                         ", expected a STEP file, which begins with 'ISO-10303-21;'");
    }
    if (!holdsLastWord(stream, static_cast<std::streamoff>(std::filesystem::file_size(file)))) {
        throw ModelError(file.string() +
                         ": found the end of the file, expected 'END-ISO-10303-21;' before it: "
                         "the file is cut off");
    }
}

} // namespace orvane::step
