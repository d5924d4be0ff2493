#include "damage/StepMutations.h"

#include "damage/DamageKinds.h"

#include <span>

namespace orvane::step_damage {

namespace {

struct Kind {
    const char* name;
    bool (*damage)(Damaging&);
};

constexpr Kind kKinds[] = {
    {"byte changed", changeByte},
    {"byte removed", removeByte},
    {"byte inserted", insertByte},
    {"reference exchanged", exchangeReference},
    {"turned on itself", turnOnItself},
    {"circle", makeCircle},
    {"circle of one entity", makeCircleOfOneEntity},
    {"circle back up", makeCircleBackUp},
    {"real", makeRealExtreme},
    {"radius", makeRadiusExtreme},
    {"integer", makeIntegerExtreme},
    {"spline count", makeSplineCountExtreme},
    {"knot", makeKnotExtreme},
    {"cut off", cutOff},
    {"cut off and ended", cutOffAndEnd},
    {"statement doubled", doubleStatement},
    {"statement removed", removeStatement},
    {"statements exchanged", exchangeStatements},
    {"entity exchanged", exchangeEntity},
    {"list emptied", emptyList},
    {"list doubled", doubleList},
    {"parameter omitted", omitParameter},
};

} // namespace

int mutationKinds() {
    return static_cast<int>(std::size(kKinds));
}

const char* mutationName(int kind) {
    return std::span(kKinds)[static_cast<std::size_t>(kind)].name;
}

MutatedFile mutated(const std::string& file, int kind, std::uint64_t seed) {
    StepText step = takenApart(file);
    Dice dice(seed);
    Damaging damaging{step, dice};
    MutatedFile result;
    int left = dice.toss() ? 1 : 2 + static_cast<int>(dice.below(3));
    while (left > 0 && !step.statements.empty()) {
        if (std::span(kKinds)[static_cast<std::size_t>(kind)].damage(damaging)) {
            result.story += (result.story.empty() ? "" : ", ") + std::string(mutationName(kind));
            kind = static_cast<int>(dice.below(std::size(kKinds)));
            --left;
        } else {
            kind = (kind + 1) % mutationKinds();
        }
        std::erase(step.statements, "");
    }
    result.bytes = step.bytes();
    return result;
}

} // namespace orvane::step_damage
