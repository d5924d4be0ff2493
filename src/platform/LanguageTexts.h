#pragma once

#include <cstdint>
#include <string>

namespace orvane {

/// The texts that a person reads, in the person's language, by number.
class LanguageTexts {
public:
    virtual ~LanguageTexts() = default;

    /// Narrow, in the system's code page; empty for a number without a text.
    virtual std::string text(std::int32_t number) const = 0;
};

inline constexpr std::int32_t kWrongHostText = 125;
inline constexpr std::int32_t kUntitledText = 127;

} // namespace orvane
