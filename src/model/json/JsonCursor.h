#pragma once

#include "model/json/JsonKey.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane::json {

struct DocumentContext;

/// One value of a model document together with the way that leads to it, so that every complaint names its
/// place. A cursor points into the tree and at the cursor that it came from: both must outlive it, so cursors
/// stay on the stack and are never returned upwards. Every check throws `ModelError`.
class JsonCursor {
public:
    JsonCursor(const nlohmann::json& root, DocumentContext& context) : value_(&root), context_(&context) {}

    DocumentContext& context() const { return *context_; }

    bool isNull() const;
    bool isText() const;
    bool isNumber() const;
    bool isList() const;
    bool isObject() const;

    /// Reads an object. The keys stand in the order in which messages list them; each one that the object has
    /// is read in its turn, those of one turn as they are listed. Anything but an object and any other key is
    /// refused before the first is read. There is no other way to the entries of a record, so none is read
    /// that is not listed.
    template <typename... Read>
    void readObject(const JsonKey<Read>&... keys) const {
        expectKeys({keys.name...});
        const int last = std::max({keys.turn...});
        for (int turn = std::min({keys.turn...}); turn <= last; ++turn) {
            ((keys.turn == turn ? readEntry(keys) : void()), ...);
        }
    }

    /// Calls `use` with the name and the value of every entry of an object, in the order of the names: for an
    /// object that is a table, whose keys are the user's.
    template <typename Use>
    void forEachEntry(Use&& use) const {
        for (const std::string_view name : names()) {
            use(name, *find(name));
        }
    }

    /// Number of items; refuses anything but a list.
    std::size_t listSize() const;
    JsonCursor at(std::size_t index) const;
    /// Calls `use` with every item of a list.
    template <typename Use>
    void forEachItem(Use&& use) const {
        for (std::size_t i = 0, count = listSize(); i < count; ++i) {
            use(at(i));
        }
    }

    /// The text in UTF-8, as it stands in the tree.
    const std::string& utf8() const;
    double number() const;
    /// A whole number from `lowest` to `highest`.
    std::int64_t integer(std::int64_t lowest, std::int64_t highest) const;
    bool flag() const;
    /// A list of as many numbers as `out` is long.
    void numbers(std::span<double> out) const;
    /// A list of numbers whose length is a multiple of `step`; each must fit a 32-bit floating point number.
    std::vector<double> floatNumbers(std::size_t step) const;

    /// The way from the document to this value, such as `/components/2/placement`; empty for the document
    /// itself.
    std::string path() const;

    /// Throws the message `FILE: PATH: found FOUND, expected EXPECTED`.
    [[noreturn]] void fail(const std::string& found, const std::string& expected) const;
    /// The same, where this value itself is what was found.
    [[noreturn]] void mismatch(const std::string& expected) const;

private:
    JsonCursor(const nlohmann::json& value, const JsonCursor& parent, const std::string* key,
               std::size_t index)
        : value_(&value), context_(parent.context_), parent_(&parent), key_(key), index_(index) {}

    template <typename Read>
    void readEntry(const JsonKey<Read>& key) const {
        if (const auto entry = find(key.name)) {
            key.read(*entry);
        } else if (key.isRequired) {
            fail("no \"" + std::string(key.name) + '"', "it to be given");
        }
    }

    void expectKeys(std::initializer_list<std::string_view> keys) const;
    std::optional<JsonCursor> find(std::string_view key) const;
    std::vector<std::string_view> names() const;
    void appendPath(std::string& out) const;
    std::string description() const;

    const nlohmann::json* value_;
    DocumentContext* context_;
    const JsonCursor* parent_ = nullptr;
    const std::string* key_ = nullptr; ///< of this entry in its object; null for an item of a list
    std::size_t index_ = 0;
};

void readValue(const JsonCursor& value, bool& out);
void readValue(const JsonCursor& value, double& out);
void readValue(const JsonCursor& value, std::int32_t& out);
void readValue(const JsonCursor& value, std::u16string& out);
void readValue(const JsonCursor& value, std::array<double, 3>& out);
void readValue(const JsonCursor& value, std::array<double, 6>& out);

template <typename T>
void readValue(const JsonCursor& value, std::optional<T>& out) {
    readValue(value, out.emplace());
}

/// Replaces what the list held. It is made as long as it gets before the first item is read: addresses that
/// are taken of items stay true.
template <typename T>
void readValue(const JsonCursor& value, std::vector<T>& out) {
    out.clear();
    out.reserve(value.listSize());
    value.forEachItem([&](const JsonCursor& item) { readValue(item, out.emplace_back()); });
}

/// The value, where there is no field that takes it.
template <typename T>
T valueAs(const JsonCursor& value) {
    T out{};
    readValue(value, out);
    return out;
}

/// A text out of a table of words.
template <typename T>
using Words = std::initializer_list<std::pair<std::string_view, T>>;

template <typename T>
T readWord(const JsonCursor& value, Words<T> words) {
    std::string expected;
    for (const auto& [word, meaning] : words) {
        if (value.isText() && value.utf8() == word) {
            return meaning;
        }
        expected += (expected.empty() ? "\"" : ", \"") + std::string(word) + '"';
    }
    value.mismatch("one of " + expected);
}

/// A whole number, or a text that stands for one.
std::int32_t readNumberOrWord(const JsonCursor& value, Words<std::int32_t> words);

} // namespace orvane::json
