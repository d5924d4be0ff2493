#pragma once

#include <cstdint>
#include <string>

namespace orvane::step_damage {

/// How many kinds of damage there are. A kind is a number from 0 on.
int mutationKinds();

const char* mutationName(int kind);

/// A damaged file.
struct MutatedFile {
    std::string bytes;
    std::string story; ///< the kinds of damage, in the order in which they were done
};

/// Damages the DATA section of a well-formed file: by `kind` first, then in half of all cases by one to three
/// others. The same arguments give the same bytes everywhere. A kind that needs something that is not in the
/// file (splines) gives way to the next one.
MutatedFile mutated(const std::string& file, int kind, std::uint64_t seed);

} // namespace orvane::step_damage
