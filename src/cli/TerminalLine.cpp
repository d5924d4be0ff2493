#include "cli/TerminalLine.h"

#include "platform/Utf8.h"

#include <algorithm>
#include <sys/ioctl.h>
#include <unistd.h>

namespace orvane::cli {

namespace {

constexpr std::size_t kUsualColumns = 80;

bool isControl(char16_t unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

std::u16string withoutControls(std::string_view text) {
    std::u16string clean = utf16FromUtf8(text);
    std::ranges::replace_if(clean, isControl, u'?');
    return clean;
}

/// The most that one unit of UTF-16 takes: wide characters begin at U+1100, and a surrogate is half of one.
/// Some that stand above take one column only; for a line that must not wrap that does no harm.
std::size_t columnsOf(char16_t unit) {
    return unit >= 0x1100 && !(unit >= 0xD800 && unit < 0xE000) ? 2 : 1;
}

std::size_t columnsOf(std::u16string_view text) {
    std::size_t columns = 0;
    for (const char16_t unit : text) {
        columns += columnsOf(unit);
    }
    return columns;
}

/// The name without as much of its head as makes it fit, at most all of it.
std::u16string shortened(std::u16string_view name, std::size_t columns) {
    constexpr std::u16string_view kLeftOut = u"...";
    std::size_t taken = kLeftOut.size();
    std::size_t start = name.size();
    while (start > 0 && taken + columnsOf(name[start - 1]) <= columns) {
        taken += columnsOf(name[--start]);
    }
    return std::u16string(kLeftOut).append(name.substr(start));
}

} // namespace

std::string terminalLine(std::string_view before, std::string_view name, std::string_view after,
                         std::size_t columns) {
    const std::u16string head = withoutControls(before);
    const std::u16string end = withoutControls(after);
    std::u16string middle = withoutControls(name);
    const std::size_t others = columnsOf(head) + columnsOf(end);
    if (others + columnsOf(middle) > columns) {
        middle = shortened(middle, columns > others ? columns - others : 0);
    }
    std::u16string line = head + middle + end;
    for (std::size_t taken = columnsOf(line); taken > columns; line.pop_back()) {
        taken -= columnsOf(line.back());
    }
    return utf8FromUtf16(line);
}

bool isTerminalThere() {
    return isatty(STDERR_FILENO) != 0;
}

std::size_t terminalColumns() {
    winsize size{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : kUsualColumns;
}

} // namespace orvane::cli
