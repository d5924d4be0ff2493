#include "model/json/JsonText.h"

#include "model/json/ShownText.h"
#include "model/records/ModelError.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>
#include <vector>

namespace orvane::json {

namespace {

using Json = nlohmann::json;

std::string readWholeFile(const std::filesystem::path& file) {
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (!std::filesystem::exists(status)) {
        throw ModelError(file, "", "no file", "a model document");
    }
    if (!std::filesystem::is_regular_file(status)) {
        throw ModelError(file, "", std::filesystem::is_directory(status) ? "a folder" : "a special file",
                         "a model document");
    }
    std::ifstream in(file, std::ios::binary);
    const auto size = std::filesystem::file_size(file, error);
    std::string text(error ? 0 : static_cast<std::size_t>(size), '\0');
    if (error || !in.read(text.data(), static_cast<std::streamsize>(text.size()))) {
        throw ModelError(file, "", "a file that cannot be read", "a model document");
    }
    return text;
}

bool isWordCharacter(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '+' ||
           c == '-' || c == '.' || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

/// What stands at `at`, in words: the word around it, or the character.
std::string describeText(std::string_view text, std::size_t at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte < 0x20 || byte == 0x7F) {
        return byte == '\n' ? "the end of the line" : "a byte of value " + std::to_string(byte);
    }
    if (text[at] == '"') {
        return "a quotation mark";
    }
    std::size_t first = at;
    std::size_t last = at + 1;
    if (isWordCharacter(text[at])) {
        while (first > 0 && at - first < 40 && isWordCharacter(text[first - 1])) {
            --first;
        }
        while (last < text.size() && last - first < 80 && isWordCharacter(text[last])) {
            ++last;
        }
    }
    const std::string_view word = text.substr(first, last - first);
    return inQuotes(word.substr(0, wellFormedUtf8Length(word)));
}

/// Builds the tree while the text is parsed, and refuses what the parser would let pass.
class TreeBuilder final : public nlohmann::json_sax<Json> {
public:
    TreeBuilder(const std::filesystem::path& file, std::string_view text) : file_(file), text_(text) {}

    JsonTree takeTree() { return std::move(tree_); }

    bool null() override { return place(nullptr); }
    bool boolean(bool value) override { return place(value); }
    /// The parser gives every number without a minus sign as unsigned: a 0 that comes here was written `-0`.
    bool number_integer(number_integer_t value) override { return value == 0 ? place(-0.0) : place(value); }
    bool number_unsigned(number_unsigned_t value) override { return place(value); }
    bool number_float(number_float_t value, const string_t&) override { return place(value); }
    bool string(string_t& value) override { return place(std::move(value)); }
    bool binary(binary_t& value) override { return place(std::move(value)); }

    bool start_object(std::size_t) override { return open(Json::object()); }
    bool start_array(std::size_t) override { return open(Json::array()); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }

    bool key(string_t& name) override {
        Level& level = levels_.back();
        const auto [entry, isNew] = level.container->get_ref<Json::object_t&>().emplace(name, nullptr);
        if (!isNew) {
            throw ModelError(file_, path(), "the key " + inQuotes(name) + " twice", "it once");
        }
        level.key = &entry->first;
        level.slot = &entry->second;
        return true;
    }

    bool parse_error(std::size_t position, const std::string&, const Json::exception& error) override {
        // The position counts the bytes read, one more at the end of the text.
        const std::size_t at = position == 0 ? 0 : position - 1;
        const std::string_view read = text_.substr(0, std::min(at + 1, text_.size()));
        // 406 is a number that overflows; the parser's other complaints say where, and the state here says
        // what.
        constexpr int kNumberOverflow = 406;
        if (error.id == kNumberOverflow) {
            refuse(read.size() - 1, describeText(text_, read.size() - 1),
                   "a number within 64-bit floating point");
        }
        if (const std::size_t good = wellFormedUtf8Length(text_); good < read.size()) {
            refuse(good,
                   "a byte that is not UTF-8 (value " +
                       std::to_string(static_cast<unsigned char>(text_[good])) + ")",
                   "UTF-8 text");
        }
        if (text_.find_first_not_of(" \t\r\n") == std::string_view::npos) {
            throw ModelError(file_, "", "an empty file", "a JSON object");
        }
        if (at >= text_.size()) {
            refuse(text_.size() - 1, "the end of the file", expectation());
        }
        const bool inText = std::string_view(error.what()).find("invalid string") != std::string_view::npos;
        refuse(at, describeText(text_, at), inText ? "a text that JSON allows" : expectation());
    }

private:
    struct Level {
        Json* container = nullptr;
        const std::string* key = nullptr; ///< of the entry at hand, in an object
        Json* slot = nullptr;             ///< the entry at hand, in an object
    };

    Json& put(Json&& value) {
        if (levels_.empty()) {
            hasRoot_ = true;
            return tree_.root() = std::move(value);
        }
        Level& level = levels_.back();
        if (level.slot != nullptr) {
            return *level.slot = std::move(value);
        }
        level.container->push_back(std::move(value));
        return level.container->back();
    }

    bool place(Json&& value) {
        put(std::move(value));
        return true;
    }

    bool open(Json&& container) {
        if (levels_.size() == kMostOpenBrackets) {
            throw ModelError(file_, path(),
                             "more than " + std::to_string(kMostOpenBrackets) + " brackets open at once",
                             "fewer");
        }
        levels_.push_back({&put(std::move(container)), nullptr, nullptr});
        return true;
    }

    bool close() {
        levels_.pop_back();
        return true;
    }

    /// The path of the container at hand, or its head.
    std::string path() const {
        std::string path;
        for (std::size_t i = 0; i + 1 < levels_.size() && path.size() < 60; ++i) {
            const Level& level = levels_[i];
            path += '/' + (level.key != nullptr ? shownPathSegment(*level.key)
                                                : std::to_string(level.container->size() - 1));
        }
        return path;
    }

    std::string expectation() const {
        if (levels_.empty()) {
            return hasRoot_ ? "the end of the file" : "a JSON object";
        }
        return levels_.back().container->is_array() ? R"(a JSON value, "," or "]")"
                                                    : R"(a key, ":", a JSON value, "," or "}")";
    }

    [[noreturn]] void refuse(std::size_t at, const std::string& found, const std::string& expected) const {
        const std::string_view before = text_.substr(0, at);
        const auto line = std::ranges::count(before, '\n') + 1;
        const std::size_t lineStart = before.rfind('\n') + 1; // npos + 1 is 0
        throw ModelError(file_,
                         "line " + std::to_string(line) + ", column " + std::to_string(at - lineStart + 1),
                         found, expected);
    }

    const std::filesystem::path& file_;
    std::string_view text_;
    JsonTree tree_;
    bool hasRoot_ = false;
    std::vector<Level> levels_;
};

} // namespace

JsonTree readJsonFile(const std::filesystem::path& file) {
    const std::string text = readWholeFile(file);
    TreeBuilder builder(file, text);
    Json::sax_parse(text, &builder);
    return builder.takeTree();
}

} // namespace orvane::json
