#include "damage/StepStatements.h"

#include <algorithm>
#include <cctype>

namespace orvane::step_damage {

namespace {

bool isAnyOf(char letter, std::string_view set) {
    return set.find(letter) != std::string_view::npos;
}

bool isDigit(char letter) {
    return std::isdigit(static_cast<unsigned char>(letter)) != 0;
}

bool isNameLetter(char letter) {
    return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_';
}

/// Behind the text that begins at `at`; a quote in it is doubled and so begins another.
std::size_t endOfQuoted(std::string_view text, std::size_t at) {
    const std::size_t quote = text.find('\'', at + 1);
    return quote == std::string_view::npos ? text.size() : quote + 1;
}

/// Behind the next semicolon that is in no text.
std::size_t endOfStatement(std::string_view text, std::size_t at) {
    while (at < text.size() && text[at] != ';') {
        at = text[at] == '\'' ? endOfQuoted(text, at) : at + 1;
    }
    return std::min(at + 1, text.size());
}

template <class Predicate>
std::size_t endOfRun(std::string_view text, std::size_t at, Predicate belongs) {
    while (at < text.size() && belongs(text[at])) {
        ++at;
    }
    return at;
}

Word numberAt(std::string_view text, std::size_t at) {
    const std::size_t end =
        endOfRun(text, at + 1, [](char letter) { return isDigit(letter) || isAnyOf(letter, ".eE+-"); });
    const bool isReal = text.substr(at, end - at).find('.') != std::string_view::npos;
    return {isReal ? WordKind::real : WordKind::integer, at, end - at};
}

/// The word that begins at `at`, of one letter at least.
Word wordAt(std::string_view text, std::size_t at) {
    const char first = text[at];
    if (first == '#') {
        return {WordKind::reference, at, endOfRun(text, at + 1, isDigit) - at};
    }
    if (first == '\'') {
        return {WordKind::text, at, endOfQuoted(text, at) - at};
    }
    if (isDigit(first) || first == '-' || first == '+') {
        return numberAt(text, at);
    }
    if (isNameLetter(first)) {
        return {WordKind::name, at, endOfRun(text, at, isNameLetter) - at};
    }
    if (first == '.') {
        const std::size_t end = endOfRun(text, at + 1, isNameLetter);
        return {WordKind::other, at, std::min(end + 1, text.size()) - at};
    }
    const bool isBracket = first == '(' || first == ')';
    return {!isBracket ? WordKind::other : first == '(' ? WordKind::open : WordKind::close, at, 1};
}

} // namespace

std::string StepText::bytes() const {
    std::string bytes = head;
    for (const std::string& statement : statements) {
        bytes += statement;
    }
    return bytes + tail;
}

StepText takenApart(std::string_view file) {
    StepText step;
    std::size_t at = std::min(file.find("DATA;"), file.size());
    at = endOfStatement(file, at);
    step.head = file.substr(0, at);
    while (at < file.size()) {
        const std::size_t end = endOfStatement(file, at);
        const std::string_view statement = file.substr(at, end - at);
        if (statement.find("ENDSEC") != std::string_view::npos &&
            statement.find('#') == std::string_view::npos) {
            break;
        }
        step.statements.emplace_back(statement);
        at = end;
    }
    step.tail = file.substr(at);
    return step;
}

std::vector<Word> wordsOf(const std::string& statement) {
    std::vector<Word> words;
    std::size_t at = statement.find('=');
    at = at == std::string::npos ? statement.size() : at + 1;
    while (at < statement.size()) {
        const char letter = statement[at];
        if (isNameLetter(letter) || isAnyOf(letter, "#'-+.()$*")) {
            words.push_back(wordAt(statement, at));
            at += words.back().size;
        } else {
            ++at;
        }
    }
    return words;
}

std::string idOf(const std::string& statement) {
    const std::size_t at = statement.find('#');
    if (at == std::string::npos || at > statement.find('=')) {
        return {};
    }
    return statement.substr(at, wordAt(statement, at).size);
}

std::string entityOf(const std::string& statement) {
    for (const Word& word : wordsOf(statement)) {
        if (word.kind == WordKind::name) {
            return statement.substr(word.at, word.size);
        }
    }
    return {};
}

} // namespace orvane::step_damage
