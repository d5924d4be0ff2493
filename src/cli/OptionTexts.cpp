#include "cli/OptionTexts.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace orvane::cli {

namespace {

/// Metres. Lengths are counted in smaller units later on, and have to stay finite.
constexpr double kEndless = 1e300;

/// The number at the start of `text`, which is left with what follows it; nothing where none stands there or
/// where it is beyond the type.
template <class Number>
std::optional<Number> takeNumber(std::string_view& text) {
    Number number{};
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (fault != std::errc{}) {
        return std::nullopt;
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

template <class Number>
std::optional<Number> wholeTextAsNumber(std::string_view text) {
    const auto number = takeNumber<Number>(text);
    return text.empty() ? number : std::nullopt;
}

} // namespace

std::optional<Deflection> deflectionFromText(std::string_view text) {
    const auto number = takeNumber<double>(text);
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    if (!number) {
        return std::nullopt;
    }
    if (text == "%") {
        const double share = *number / 100;
        return share > 0 && share <= 1 ? std::optional<Deflection>(ShareOfBox{share}) : std::nullopt;
    }
    if (!text.empty() && text != "m" && text != "mm") {
        return std::nullopt;
    }
    const double metres = text == "mm" ? *number / 1000 : *number;
    return metres > 0 && metres < kEndless ? std::optional<Deflection>(Metres{metres}) : std::nullopt;
}

std::optional<double> angleFromText(std::string_view text) {
    const auto degrees = wholeTextAsNumber<double>(text);
    return degrees && *degrees > 0 && *degrees <= 180 ? degrees : std::nullopt;
}

std::optional<unsigned> jobsFromText(std::string_view text) {
    const auto jobs = wholeTextAsNumber<unsigned>(text);
    return jobs && *jobs >= 1 && *jobs <= kMostJobs ? jobs : std::nullopt;
}

} // namespace orvane::cli
