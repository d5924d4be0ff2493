#include "model/json/DocumentContext.h"

#include "model/json/JsonCursor.h"
#include "model/json/ShownText.h"
#include "platform/AsciiCase.h"
#include "platform/Utf8.h"

#include <algorithm>

namespace orvane::json {

namespace {

std::int32_t positionOf(const std::unordered_map<std::u16string, std::int32_t>& positions,
                        const JsonCursor& name, const char* what) {
    const auto entry = positions.find(utf16FromUtf8(name.utf8()));
    if (entry == positions.end()) {
        name.mismatch(std::string("the name of a ") + what + " of this document");
    }
    return entry->second;
}

} // namespace

std::int32_t featureNamed(const JsonCursor& name) {
    return positionOf(name.context().features, name, "feature");
}

std::int32_t bodyNamed(const JsonCursor& name) {
    return positionOf(name.context().bodies, name, "body");
}

std::u16string mentionComponent(const JsonCursor& fullName) {
    std::u16string text = utf16FromUtf8(fullName.utf8());
    fullName.context().componentMentions.push_back({text, fullName.path()});
    return text;
}

std::vector<std::u16string> mentionComponents(const JsonCursor& fullNames) {
    std::vector<std::u16string> out;
    fullNames.forEachItem([&](const JsonCursor& name) { out.push_back(mentionComponent(name)); });
    return out;
}

std::filesystem::path resolveFile(const JsonCursor& name) {
    const std::string& text = name.utf8();
    if (text.empty() || text.find('\0') != std::string::npos) {
        name.mismatch("a file name");
    }
    const std::filesystem::path file(std::u8string(text.begin(), text.end()));
    return (name.context().file.parent_path() / file).lexically_normal();
}

std::filesystem::path resolveExistingFile(const JsonCursor& name) {
    std::filesystem::path file = resolveFile(name);
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) {
        name.fail(inQuotes(name.utf8()) + ", which is no file", "a file that is there");
    }
    return file;
}

std::string resolvePicture(const JsonCursor& name) {
    if (name.utf8().empty()) {
        return {};
    }
    const std::u8string text = std::filesystem::absolute(resolveFile(name)).lexically_normal().u8string();
    return {text.begin(), text.end()};
}

bool hasExtension(const std::filesystem::path& file, std::initializer_list<std::string_view> extensions) {
    const std::string own = asciiLower(file.extension().string());
    return std::ranges::find(extensions, own) != extensions.end();
}

} // namespace orvane::json
