#pragma once

#include <concepts>
#include <string_view>
#include <type_traits>
#include <utility>

namespace orvane::json {

class JsonCursor;

/// A key that an object of a model document may have, and what is done with its value. A key is written once:
/// where it is read is where it is allowed.
template <typename Read>
struct JsonKey {
    std::string_view name;
    Read read; ///< called with the cursor of the value, where the object has the key
    bool isRequired = false;
    int turn = 0; ///< keys of a higher turn are read later
};

/// A key whose value `target` takes: a function that is called with its cursor, or a field that `readValue`
/// fills, and that keeps its value where the object has no such key.
template <typename Target>
auto key(std::string_view name, Target&& target) {
    if constexpr (std::invocable<Target, const JsonCursor&>) {
        return JsonKey<std::decay_t<Target>>{name, std::forward<Target>(target)};
    } else {
        static_assert(std::is_lvalue_reference_v<Target>, "a field must outlive the key");
        auto read = [&target](const JsonCursor& value) { readValue(value, target); };
        return JsonKey<decltype(read)>{name, read};
    }
}

/// A key whose value becomes `field` by a function of its own, `Field convert(const JsonCursor&)`.
template <typename Field, typename Convert>
auto key(std::string_view name, Field& field, Convert convert) {
    return key(name, [&field, convert](const JsonCursor& value) { field = convert(value); });
}

/// The same key, without which the object is refused.
template <typename Read>
JsonKey<Read> required(JsonKey<Read> key) {
    key.isRequired = true;
    return key;
}

/// The same key, read in another turn: a lower one comes before those of turn 0.
template <typename Read>
JsonKey<Read> inTurn(int turn, JsonKey<Read> key) {
    key.turn = turn;
    return key;
}

} // namespace orvane::json
