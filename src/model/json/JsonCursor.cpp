#include "model/json/JsonCursor.h"

#include "model/json/DocumentContext.h"
#include "model/json/ShownText.h"
#include "model/records/ModelError.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>

namespace orvane::json {

using Json = nlohmann::json;

namespace {

constexpr std::int64_t kLowest32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kHighest32 = std::numeric_limits<std::int32_t>::max();

std::string quotedList(std::initializer_list<std::string_view> words) {
    std::string out;
    for (const std::string_view word : words) {
        out += (out.empty() ? "\"" : ", \"") + std::string(word) + '"';
    }
    return out;
}

} // namespace

bool JsonCursor::isNull() const {
    return value_->is_null();
}
bool JsonCursor::isText() const {
    return value_->is_string();
}
bool JsonCursor::isNumber() const {
    return value_->is_number();
}
bool JsonCursor::isList() const {
    return value_->is_array();
}
bool JsonCursor::isObject() const {
    return value_->is_object();
}

void JsonCursor::expectKeys(std::initializer_list<std::string_view> keys) const {
    if (!isObject()) {
        mismatch("an object");
    }
    for (const auto& [key, value] : value_->get_ref<const Json::object_t&>()) {
        if (std::ranges::find(keys, key) == keys.end()) {
            fail("the key " + inQuotes(key), "one of " + quotedList(keys));
        }
    }
}

std::optional<JsonCursor> JsonCursor::find(std::string_view key) const {
    const auto& entries = value_->get_ref<const Json::object_t&>();
    const auto entry = entries.find(key);
    if (entry == entries.end()) {
        return std::nullopt;
    }
    return JsonCursor(entry->second, *this, &entry->first, 0);
}

std::vector<std::string_view> JsonCursor::names() const {
    if (!isObject()) {
        mismatch("an object");
    }
    std::vector<std::string_view> out;
    for (const auto& [key, value] : value_->get_ref<const Json::object_t&>()) {
        out.emplace_back(key);
    }
    return out;
}

std::size_t JsonCursor::listSize() const {
    if (!isList()) {
        mismatch("a list");
    }
    return value_->size();
}

JsonCursor JsonCursor::at(std::size_t index) const {
    return JsonCursor((*value_)[index], *this, nullptr, index);
}

const std::string& JsonCursor::utf8() const {
    if (!isText()) {
        mismatch("a text");
    }
    return value_->get_ref<const std::string&>();
}

double JsonCursor::number() const {
    if (!isNumber()) {
        mismatch("a number");
    }
    return value_->get<double>();
}

std::int64_t JsonCursor::integer(std::int64_t lowest, std::int64_t highest) const {
    // Every integer of the allowed ranges is exact as a double, and 3.0 is a way to write 3.
    const double value = isNumber() ? value_->get<double>() : std::nan("");
    if (!(value >= static_cast<double>(lowest) && value <= static_cast<double>(highest)) ||
        value != std::trunc(value)) {
        mismatch("a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest));
    }
    return static_cast<std::int64_t>(value);
}

bool JsonCursor::flag() const {
    if (!value_->is_boolean()) {
        mismatch("true or false");
    }
    return value_->get<bool>();
}

void JsonCursor::numbers(std::span<double> out) const {
    if (!isList() || value_->size() != out.size()) {
        mismatch("a list of " + std::to_string(out.size()) + " numbers");
    }
    for (std::size_t i = 0; i < out.size(); ++i) {
        out[i] = at(i).number();
    }
}

std::vector<double> JsonCursor::floatNumbers(std::size_t step) const {
    // Half a step beyond the largest single precision number.
    constexpr double kRoundsToInfinity = 0x1.ffffffp127;
    const std::size_t count = listSize();
    if (count % step != 0) {
        fail(std::to_string(count) + (count == 1 ? " number" : " numbers"),
             "a multiple of " + std::to_string(step));
    }
    std::vector<double> out(count);
    for (std::size_t i = 0; i < count; ++i) {
        const JsonCursor item = at(i);
        out[i] = item.number();
        if (std::abs(out[i]) >= kRoundsToInfinity) {
            item.mismatch("a number within 32-bit floating point");
        }
    }
    return out;
}

void JsonCursor::appendPath(std::string& out) const {
    // The way is as long as the brackets are deep, which the text reader limits.
    if (parent_ != nullptr) {
        parent_->appendPath(out);
        out += '/' + (key_ != nullptr ? shownPathSegment(*key_) : std::to_string(index_));
    }
}

std::string JsonCursor::path() const {
    constexpr std::size_t kLongest = 200, kHead = 120, kTail = 60;
    std::string out;
    appendPath(out);
    if (out.size() <= kLongest) {
        return out;
    }
    // Cut between steps, so that no character is cut.
    return out.substr(0, out.rfind('/', kHead)) + "/..." + out.substr(out.rfind('/', out.size() - kTail));
}

std::string JsonCursor::description() const {
    if (isObject()) {
        return value_->empty() ? "an empty object" : "an object";
    }
    if (isList()) {
        return value_->empty() ? "an empty list" : "a list of " + std::to_string(value_->size());
    }
    if (isText()) {
        return inQuotes(utf8());
    }
    return value_->dump();
}

void JsonCursor::fail(const std::string& found, const std::string& expected) const {
    throw ModelError(context_->file, path(), found, expected);
}

void JsonCursor::mismatch(const std::string& expected) const {
    fail(description(), expected);
}

void readValue(const JsonCursor& value, bool& out) {
    out = value.flag();
}
void readValue(const JsonCursor& value, double& out) {
    out = value.number();
}
void readValue(const JsonCursor& value, std::int32_t& out) {
    out = static_cast<std::int32_t>(value.integer(kLowest32, kHighest32));
}
void readValue(const JsonCursor& value, std::u16string& out) {
    out = utf16FromUtf8(value.utf8());
}
void readValue(const JsonCursor& value, std::array<double, 3>& out) {
    value.numbers(out);
}
void readValue(const JsonCursor& value, std::array<double, 6>& out) {
    value.numbers(out);
}

std::int32_t readNumberOrWord(const JsonCursor& value, Words<std::int32_t> words) {
    if (!value.isNumber()) {
        return readWord(value, words);
    }
    std::int32_t number = 0;
    readValue(value, number);
    return number;
}

} // namespace orvane::json
