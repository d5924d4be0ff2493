#include "embedded/step/StepText.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace orvane {

namespace {

// Length of the well-formed UTF-8 character at `at`, 0 where there is none.
std::size_t utf8Length(std::string_view bytes, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned lead = byte(at);
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length == 0 || at + length > bytes.size()) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0) != 0x80) {
            return 0;
        }
    }
    const bool overlongOrBeyond =
        (lead == 0xE0 && byte(at + 1) < 0xA0) || (lead == 0xED && byte(at + 1) > 0x9F) ||
        (lead == 0xF0 && byte(at + 1) < 0x90) || (lead == 0xF4 && byte(at + 1) > 0x8F);
    return overlongOrBeyond ? 0 : length;
}

bool isUtf8(std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t length = utf8Length(bytes, at);
        if (length == 0) {
            return false;
        }
        at += length;
    }
    return true;
}

void appendCode(std::u16string& out, std::uint32_t code) {
    if (code < 0x20 || code == 0x7F) {
        out += u' ';
    } else if (code < 0x10000) {
        out += static_cast<char16_t>(code);
    } else {
        out += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
        out += static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
    }
}

std::u16string trimmed(const std::u16string& text) {
    const std::size_t first = text.find_first_not_of(u' ');
    return first == std::u16string::npos ? std::u16string()
                                         : text.substr(first, text.find_last_not_of(u' ') + 1 - first);
}

bool isDigits(std::u16string_view text, std::u16string_view alsoAllowed = {}) {
    return std::ranges::all_of(text, [&](char16_t c) {
        return (c >= u'0' && c <= u'9') || alsoAllowed.find(c) != std::u16string_view::npos;
    });
}

// `=>[0:1:1:2]`: the place of a label in a writer's document.
bool isLabelPlace(std::u16string_view name) {
    return name.starts_with(u"=>[") && name.ends_with(u"]");
}

bool isInventedInstanceName(std::u16string_view name) {
    constexpr std::array<std::u16string_view, 3> kPhrases = {u"NONE", u"None", u"Next assembly relationship"};
    return name.empty() || isLabelPlace(name) || std::ranges::find(kPhrases, name) != kPhrases.end() ||
           (name.starts_with(u"NAUO") && isDigits(name.substr(4), u"_"));
}

std::u16string numbered(const std::u16string& name, unsigned number) {
    std::u16string out = name + u"-";
    for (const char c : std::to_string(number)) {
        out += static_cast<char16_t>(c);
    }
    return out;
}

} // namespace

std::u16string fromStepText(std::string_view bytes) {
    std::u16string out;
    out.reserve(bytes.size());
    const bool utf8 = isUtf8(bytes);
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t length = utf8 ? utf8Length(bytes, at) : 1;
        std::uint32_t code = static_cast<unsigned char>(bytes[at]);
        if (length > 1) {
            code &= 0x7Fu >> length;
            for (std::size_t i = 1; i < length; ++i) {
                code = (code << 6) | (static_cast<unsigned char>(bytes[at + i]) & 0x3Fu);
            }
        }
        appendCode(out, code);
        at += length;
    }
    return trimmed(out);
}

bool isInventedProductName(std::u16string_view name) {
    constexpr std::u16string_view kTranslator = u"Open CASCADE STEP translator";
    return name.empty() || isLabelPlace(name) || name == u"NONE" ||
           (name.starts_with(kTranslator) && isDigits(name.substr(kTranslator.size()), u" ."));
}

std::u16string instanceName(const std::u16string& description, const std::u16string& name,
                            const std::u16string& id, const std::u16string& productName) {
    if (!isInventedInstanceName(description)) {
        return description;
    }
    if (!isInventedInstanceName(name)) {
        return name;
    }
    const bool continuesProduct =
        !productName.empty() && id.size() > productName.size() && id.starts_with(productName);
    return continuesProduct ? id : std::u16string();
}

void UniqueNames::reserve(std::u16string name) {
    std::ranges::replace(name, u'/', u'_');
    reserved_.insert(std::move(name));
}

std::u16string UniqueNames::take(std::u16string wanted) {
    std::ranges::replace(wanted, u'/', u'_');
    if (taken_.insert(wanted).second) {
        return wanted;
    }
    unsigned& number = lastNumber_[wanted];
    for (;;) {
        std::u16string name = numbered(wanted, ++number);
        if (!reserved_.contains(name) && taken_.insert(name).second) {
            return name;
        }
    }
}

} // namespace orvane
