#include "damage/DamageKinds.h"

#include <span>
#include <unordered_map>

namespace orvane::step_damage {

namespace {

bool hasReference(const std::string& statement) {
    return std::ranges::any_of(wordsOf(statement),
                               [](const Word& word) { return word.kind == WordKind::reference; });
}

/// Lets each of these statements lead to the next one, and the last one to the first.
bool closeCircle(Damaging& damaging, std::span<std::string* const> circle) {
    for (std::size_t i = 0; i < circle.size(); ++i) {
        const std::string* self = circle[i];
        const std::string next = idOf(*circle[(i + 1) % circle.size()]);
        replaceWord(
            damaging, {WordKind::reference}, [self](const std::string& other) { return &other == self; },
            [&](const std::string&) { return next; });
    }
    return !circle.empty();
}

std::vector<std::string*> statementsWithReferences(StepText& step, const std::string& entity = {}) {
    std::vector<std::string*> found;
    for (std::string& statement : step.statements) {
        if ((entity.empty() || entityOf(statement) == entity) && hasReference(statement)) {
            found.push_back(&statement);
        }
    }
    return found;
}

bool circleAmong(Damaging& damaging, std::vector<std::string*> candidates) {
    std::vector<std::string*> circle;
    for (std::size_t left = 2 + damaging.dice.below(5); left > 0 && !candidates.empty(); --left) {
        const auto chosen =
            candidates.begin() + static_cast<std::ptrdiff_t>(damaging.dice.below(candidates.size()));
        circle.push_back(*chosen);
        candidates.erase(chosen);
    }
    return closeCircle(damaging, circle);
}

} // namespace

bool exchangeReference(Damaging& damaging) {
    return replaceWord(damaging, {WordKind::reference}, isAnything,
                       [&](const std::string&) { return idOf(damaging.anyStatement()); });
}

bool turnOnItself(Damaging& damaging) {
    return replaceWord(damaging, {WordKind::reference}, isAnything,
                       [](const std::string& statement) { return idOf(statement); });
}

bool makeCircle(Damaging& damaging) {
    return circleAmong(damaging, statementsWithReferences(damaging.step));
}

/// Edge loops to edge loops, products to products: a reader that checks types meets it too.
bool makeCircleOfOneEntity(Damaging& damaging) {
    std::vector<std::string*> any = statementsWithReferences(damaging.step);
    return !any.empty() && circleAmong(damaging, statementsWithReferences(
                                                     damaging.step, entityOf(*damaging.dice.oneOf(any))));
}

/// Goes down from a statement by what it refers to, and lets the lowest one refer to the first.
bool makeCircleBackUp(Damaging& damaging) {
    std::unordered_map<std::string, std::string*> byId;
    for (std::string& statement : damaging.step.statements) {
        byId[idOf(statement)] = &statement;
    }
    const std::vector<std::string*> any = statementsWithReferences(damaging.step);
    if (any.empty()) {
        return false;
    }
    std::string* const first = damaging.dice.oneOf(any);
    std::string* lowest = first;
    for (std::size_t left = 1 + damaging.dice.below(5); left > 0; --left) {
        std::vector<std::string*> below;
        for (const Word& word : wordsOf(*lowest)) {
            const auto found = byId.find(lowest->substr(word.at, word.size));
            if (found != byId.end() && hasReference(*found->second)) {
                below.push_back(found->second);
            }
        }
        lowest = below.empty() ? lowest : damaging.dice.oneOf(below);
    }
    return replaceWord(
        damaging, {WordKind::reference}, [lowest](const std::string& other) { return &other == lowest; },
        [first](const std::string&) { return idOf(*first); });
}

} // namespace orvane::step_damage
