#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane::cli {

/// `before`, `name` and `after` (UTF-8) as one line that takes at most `columns` columns of a terminal. Where
/// they take more, the head of the name gives way to `...`, and then the end of the line is cut. Control
/// characters become `?`, bytes that are no UTF-8 become U+FFFD.
std::string terminalLine(std::string_view before, std::string_view name, std::string_view after,
                         std::size_t columns);

/// Whether standard error is a terminal.
bool isTerminalThere();

/// Columns of the terminal at standard error; 80 where it does not tell.
std::size_t terminalColumns();

} // namespace orvane::cli
