#pragma once

#include "damage/StepStatements.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <random>

namespace orvane::step_damage {

/// What the standard leaves to the library (distributions, shuffles) would differ between them.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}

    std::size_t below(std::size_t count) { return engine_() % count; }
    bool toss() { return below(2) == 1; }
    template <class List>
    auto& oneOf(List& list) {
        return list[below(std::size(list))];
    }

private:
    std::mt19937_64 engine_;
};

/// What a kind of damage works on.
struct Damaging {
    StepText& step;
    Dice& dice;

    std::string& anyStatement() { return dice.oneOf(step.statements); }
};

/// Looks on from a statement at random for one that has words of one of these kinds, and puts what `make`
/// returns in the place of one of them.
template <class Filter, class Make>
bool replaceWord(Damaging& damaging, std::initializer_list<WordKind> kinds, Filter filter, Make make) {
    std::vector<std::string>& statements = damaging.step.statements;
    const std::size_t first = damaging.dice.below(statements.size());
    for (std::size_t i = 0; i < statements.size(); ++i) {
        std::string& statement = statements[(first + i) % statements.size()];
        if (!filter(statement)) {
            continue;
        }
        std::vector<Word> words = wordsOf(statement);
        std::erase_if(words, [&](const Word& word) { return std::ranges::count(kinds, word.kind) == 0; });
        if (!words.empty()) {
            const Word word = damaging.dice.oneOf(words);
            const std::string made = make(statement);
            statement.replace(word.at, word.size, made);
            return true;
        }
    }
    return false;
}

inline bool isAnything(const std::string& /*statement*/) {
    return true;
}

/// The kinds. Each answers whether it found something to damage.
bool changeByte(Damaging& damaging);
bool removeByte(Damaging& damaging);
bool insertByte(Damaging& damaging);
bool exchangeReference(Damaging& damaging);
bool turnOnItself(Damaging& damaging);
bool makeCircle(Damaging& damaging);
bool makeCircleOfOneEntity(Damaging& damaging);
bool makeCircleBackUp(Damaging& damaging);
bool makeRealExtreme(Damaging& damaging);
bool makeRadiusExtreme(Damaging& damaging);
bool makeIntegerExtreme(Damaging& damaging);
bool makeSplineCountExtreme(Damaging& damaging);
bool makeKnotExtreme(Damaging& damaging);
bool cutOff(Damaging& damaging);
bool cutOffAndEnd(Damaging& damaging);
bool doubleStatement(Damaging& damaging);
bool removeStatement(Damaging& damaging);
bool exchangeStatements(Damaging& damaging);
bool exchangeEntity(Damaging& damaging);
bool emptyList(Damaging& damaging);
bool doubleList(Damaging& damaging);
bool omitParameter(Damaging& damaging);

} // namespace orvane::step_damage
