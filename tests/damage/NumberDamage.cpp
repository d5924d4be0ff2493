#include "damage/DamageKinds.h"

#include <array>

namespace orvane::step_damage {

namespace {

constexpr std::array<const char*, 18> kReals = {
    "1.E+308", "-1.E+308", "1.E-308", "1.E+99", "-1.E+99", "1.E+400", "1.E+20",  "1.E+10", "1.E-10",
    "0.",      "-0.",      "-1.",     "1.",     "NAN",     "1.#QNAN", "-1.#IND", "INF",    "."};
constexpr std::array<const char*, 15> kIntegers = {
    "0",          "-1",         "1",     "2",          "3",
    "25",         "26",         "100",   "1000000000", "-2147483648",
    "2147483647", "4294967297", "99999", "9999999",    "99999999999999999999"};

bool isSpline(const std::string& statement) {
    return statement.find("B_SPLINE") != std::string::npos;
}

bool isRound(const std::string& statement) {
    constexpr std::array kRound = {"CIRCLE", "ELLIPSE", "CYLIND", "CONIC", "SPHER", "TOROID", "HYPERB"};
    return std::ranges::any_of(kRound,
                               [&](const char* name) { return statement.find(name) != std::string::npos; });
}

} // namespace

bool makeRealExtreme(Damaging& damaging) {
    return replaceWord(damaging, {WordKind::real}, isAnything,
                       [&](const std::string&) { return damaging.dice.oneOf(kReals); });
}

bool makeRadiusExtreme(Damaging& damaging) {
    return replaceWord(damaging, {WordKind::real}, isRound,
                       [&](const std::string&) { return damaging.dice.oneOf(kReals); });
}

bool makeIntegerExtreme(Damaging& damaging) {
    return replaceWord(damaging, {WordKind::integer}, isAnything,
                       [&](const std::string&) { return damaging.dice.oneOf(kIntegers); });
}

bool makeSplineCountExtreme(Damaging& damaging) {
    return replaceWord(damaging, {WordKind::integer}, isSpline,
                       [&](const std::string&) { return damaging.dice.oneOf(kIntegers); });
}

bool makeKnotExtreme(Damaging& damaging) {
    return replaceWord(damaging, {WordKind::real}, isSpline,
                       [&](const std::string&) { return damaging.dice.oneOf(kReals); });
}

} // namespace orvane::step_damage
