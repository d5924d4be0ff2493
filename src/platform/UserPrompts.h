#pragma once

#include <string>

namespace orvane {

/// What an export says to the person in front of the host, and asks of them.
class UserPrompts {
public:
    virtual ~UserPrompts() = default;

    /// Shows a text until it is dismissed.
    virtual void showMessage(const std::string& text, const std::string& caption) = 0;
    /// Asks a question with the answers Yes and No under a warning sign; true for Yes.
    virtual bool confirm(const std::string& text, const std::string& caption) = 0;
};

} // namespace orvane
