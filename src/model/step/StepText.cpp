#include "model/step/StepText.h"

#include "platform/Utf8.h"

#include <algorithm>
#include <array>

namespace orvane::step {

namespace {

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

/// `=>[0:1:1:2]`: the place of a label in a writer's document.
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
    std::u16string text;
    if (wellFormedUtf8Length(bytes) == bytes.size()) {
        text = utf16FromUtf8(bytes);
    } else {
        for (const char c : bytes) {
            text += static_cast<unsigned char>(c);
        }
    }
    std::ranges::replace_if(
        text, [](char16_t c) { return c < 0x20 || c == 0x7F; }, u' ');
    return trimmed(text);
}

std::u16string fromStepText(const Handle(TCollection_HAsciiString) & text) {
    return text.IsNull() ? std::u16string() : fromStepText(std::string_view(text->ToCString()));
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

void SiblingNames::reserve(std::u16string name) {
    std::ranges::replace(name, u'/', u'_');
    reserved_.insert(std::move(name));
}

std::u16string SiblingNames::take(std::u16string wanted) {
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

} // namespace orvane::step
