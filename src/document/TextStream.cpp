#include "document/TextStream.h"

#include <charconv>
#include <cmath>

namespace orvane {

namespace {

template <class Value, class... Format>
void appendNumber(std::string& text, Value value, Format... format) {
    if (value != value) {
        // What is not a number has no sign that all machines agree on.
        text += "nan";
        return;
    }
    char digits[64];
    const auto result = std::to_chars(digits, digits + sizeof digits, value, format...);
    text.append(digits, result.ptr);
}

} // namespace

TextStream& TextStream::operator<<(std::int32_t value) {
    appendNumber(text_, value);
    return *this;
}

TextStream& TextStream::operator<<(std::int64_t value) {
    appendNumber(text_, value);
    return *this;
}

TextStream& TextStream::operator<<(double value) {
    // Most numbers of most matrices are 0 and 1. Whole numbers of up to six digits look the same as integers.
    if (std::abs(value) < 1e6 && !(value == 0 && std::signbit(value))) {
        const auto whole = static_cast<std::int32_t>(value);
        if (whole == value) {
            return *this << whole;
        }
    }
    appendNumber(text_, value, std::chars_format::general, 6);
    return *this;
}

TextStream& TextStream::appendScientific(double value) {
    appendNumber(text_, value, std::chars_format::scientific, 8);
    return *this;
}

void TextStream::drainAll() {
    if (drain_) {
        drain_(text_);
        text_.clear();
    }
}

} // namespace orvane
