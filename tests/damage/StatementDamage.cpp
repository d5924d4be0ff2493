#include "damage/DamageKinds.h"

#include <algorithm>
#include <string_view>

namespace orvane::step_damage {

namespace {

/// Empties a list or says its content twice, one that is no whole statement where there is such a one.
bool changeList(Damaging& damaging, bool isEmptied) {
    std::string& statement = damaging.anyStatement();
    std::vector<Word> lists;
    std::vector<std::size_t> opened;
    for (const Word& word : wordsOf(statement)) {
        if (word.kind == WordKind::open) {
            opened.push_back(word.at + 1);
        } else if (word.kind == WordKind::close && !opened.empty()) {
            lists.push_back({.at = opened.back(), .size = word.at - opened.back()});
            opened.pop_back();
        }
    }
    if (lists.empty()) {
        return false;
    }
    const Word list = lists.size() == 1 ? lists[0] : lists[damaging.dice.below(lists.size() - 1)];
    const std::string content = statement.substr(list.at, list.size);
    statement.replace(list.at, list.size, isEmptied ? "" : content + "," + content);
    return true;
}

} // namespace

bool changeByte(Damaging& damaging) {
    damaging.dice.oneOf(damaging.anyStatement()) = static_cast<char>(damaging.dice.below(256));
    return true;
}

bool removeByte(Damaging& damaging) {
    std::string& statement = damaging.anyStatement();
    statement.erase(damaging.dice.below(statement.size()), 1);
    return !statement.empty();
}

/// A letter that means something to a parser.
bool insertByte(Damaging& damaging) {
    constexpr std::string_view kLetters = "#'(),;=.*$/-+E0123456789\"\\\n& A";
    std::string& statement = damaging.anyStatement();
    statement.insert(damaging.dice.below(statement.size() + 1), 1, damaging.dice.oneOf(kLetters));
    return true;
}

/// Within a statement as often as not.
bool cutOff(Damaging& damaging) {
    std::vector<std::string>& statements = damaging.step.statements;
    statements.resize(1 + damaging.dice.below(statements.size()));
    if (damaging.dice.toss()) {
        statements.back().resize(damaging.dice.below(statements.back().size()));
    }
    damaging.step.tail = "\n";
    return true;
}

bool cutOffAndEnd(Damaging& damaging) {
    cutOff(damaging);
    damaging.step.tail = "\nENDSEC;\nEND-ISO-10303-21;\n";
    return true;
}

/// With the same id, and either with what it says or with what another says.
bool doubleStatement(Damaging& damaging) {
    std::vector<std::string>& statements = damaging.step.statements;
    const std::string& first = damaging.anyStatement();
    const std::string& second = damaging.dice.toss() ? first : damaging.anyStatement();
    const std::size_t end = std::min(second.find('='), second.size());
    std::string twin = "\n" + idOf(first) + second.substr(end);
    const auto at = static_cast<std::ptrdiff_t>(damaging.dice.below(statements.size()));
    statements.insert(statements.begin() + at, std::move(twin));
    return true;
}

bool removeStatement(Damaging& damaging) {
    std::vector<std::string>& statements = damaging.step.statements;
    statements.erase(statements.begin() +
                     static_cast<std::ptrdiff_t>(damaging.dice.below(statements.size())));
    return true;
}

/// Two statements, each of which says then what the other one said.
bool exchangeStatements(Damaging& damaging) {
    std::string& first = damaging.anyStatement();
    std::string& second = damaging.anyStatement();
    const std::string said = first.substr(std::min(first.find('='), first.size()));
    first = "\n" + idOf(first) + second.substr(std::min(second.find('='), second.size()));
    second = "\n" + idOf(second) + said;
    return true;
}

bool exchangeEntity(Damaging& damaging) {
    return replaceWord(damaging, {WordKind::name}, isAnything,
                       [&](const std::string&) { return entityOf(damaging.anyStatement()); });
}

bool emptyList(Damaging& damaging) {
    return changeList(damaging, true);
}

bool doubleList(Damaging& damaging) {
    return changeList(damaging, false);
}

bool omitParameter(Damaging& damaging) {
    return replaceWord(
        damaging, {WordKind::reference, WordKind::real, WordKind::integer, WordKind::text, WordKind::other},
        isAnything, [&](const std::string&) { return damaging.dice.toss() ? "$" : "*"; });
}

} // namespace orvane::step_damage
