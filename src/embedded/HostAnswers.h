#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::embedded {

/// A boolean as the host answers it: 16 bits, all of them set for true.
inline std::int16_t toFlag(bool value) {
    return value ? -1 : 0;
}

/// The length of a list as the host answers it.
template <class List>
std::int32_t countOf(const List& list) {
    return static_cast<std::int32_t>(list.size());
}

/// The names of records, in their order.
template <class Records>
std::vector<std::u16string> namesOf(const Records& records) {
    std::vector<std::u16string> names;
    names.reserve(records.size());
    for (const auto& record : records) {
        names.push_back(record.name);
    }
    return names;
}

} // namespace orvane::embedded
