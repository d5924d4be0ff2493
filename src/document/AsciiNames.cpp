#include "document/AsciiNames.h"

#include <array>
#include <memory>

namespace orvane {

namespace {

struct FoldRow {
    char result;
    std::u16string_view characters;
};

// In order: a character that stands in two rows takes the first of them.
constexpr FoldRow kFoldRows[] = {
    {'A', u"ÀÁÂÃÄÅÆĀĂ"}, {'B', u"ß"},           {'C', u"ÇĆĈĊČ"},
    {'D', u"ÐĎĐđ"},      {'E', u"ÈÉÊËĒĔĖĘĚ"},   {'G', u"ĜĞĠĢ"},
    {'H', u"ĤĦ"},        {'I', u"ÌÍÎÏĨĪĬĮİ"},   {'J', u"Ĵ"},
    {'K', u"Ķ"},         {'L', u"ĹĺĻļĽľĿŀŁł£"}, {'N', u"ÑŃŅŇŊ"},
    {'O', u"ÒÓÔÕÖŌŎŐØ"}, {'R', u"ŔŖŘÞ"},        {'S', u"ŚŜŞŠ"},
    {'T', u"ŢŤŦ"},       {'U', u"ÙÚÛÜŨŪŬŮŰŲ"},  {'W', u"Ŵ"},
    {'x', u"×"},         {'Y', u"ÝŶŸ¥"},        {'Z', u"ŹŻŽ"},
    {'a', u"àáâãäåæāă"}, {'c', u"çćĉċč©¢"},     {'d', u"ðď"},
    {'e', u"èéêëēĕėęě"}, {'g', u"ĝğġģ"},        {'h', u"ĥħ"},
    {'i', u"ìíîïĩīĭį"},  {'j', u"ĵ"},           {'k', u"ķ"},
    {'n', u"ñńņňŋ"},     {'o', u"òóôõöōŏőø°"},  {'r', u"ŕŗř"},
    {'s', u"śŝşš"},      {'t', u"ţťŧ"},         {'u', u"ùúûüũūŭůűų"},
    {'w', u"ŵ"},         {'y', u"ýŷÿ"},         {'z', u"źżž"},
    {'1', u"¹"},         {'2', u"²"},           {'3', u"³"},
    {'<', u"«"},         {'>', u"»"},           {'_', u"±÷®¼¾½º¤ª;\":\\/"},
};

using FoldTable = std::array<char, 0x10000>;

std::unique_ptr<const FoldTable> makeFoldTable() {
    auto table = std::make_unique<FoldTable>();
    for (std::size_t unit = 0; unit < table->size(); ++unit) {
        (*table)[unit] = static_cast<char>(unit & 0xFF);
    }
    auto isMapped = std::make_unique<std::array<bool, 0x10000>>();
    for (const FoldRow& row : kFoldRows) {
        for (const char16_t character : row.characters) {
            if (!(*isMapped)[character]) {
                (*isMapped)[character] = true;
                (*table)[character] = row.result;
            }
        }
    }
    return table;
}

const FoldTable& foldTable() {
    static const std::unique_ptr<const FoldTable> table = makeFoldTable();
    return *table;
}

} // namespace

std::string toAsciiName(std::u16string_view text) {
    std::string name(text.size(), '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        name[i] = foldTable()[text[i]];
    }
    return name;
}

std::string toAsciiPath(std::u16string_view text) {
    std::string name = toAsciiName(text);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == u'/') {
            name[i] = '/';
        }
    }
    return name;
}

void fileSafeName(std::string& name) {
    for (char& character : name) {
        if (std::string_view("\\/\"'*:$ ").find(character) != std::string_view::npos) {
            character = '_';
        }
    }
}

} // namespace orvane
