#include "platform/NarrowText.h"

#include "platform/Utf8.h"

namespace orvane {

std::string toSystemNarrow(std::u16string_view text) {
    return utf8FromUtf16(text);
}

std::u16string fromSystemNarrow(std::string_view text) {
    return utf16FromUtf8(text);
}

} // namespace orvane
