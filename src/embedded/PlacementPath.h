#pragma once

#include "model/records/ModelRecords.h"

namespace orvane::embedded {

/// The way from one placement to another: translation and scale move linearly, the rotation along the shorter
/// arc of unit quaternions. Blocks that are no rotations, or of which only one mirrors, have no such arc:
/// their numbers move linearly.
class PlacementPath {
public:
    /// Both placements outlive the object.
    PlacementPath(const Placement& from, const Placement& to);

    /// `fraction` goes from 0 to 1.
    Placement at(double fraction) const;

private:
    using Quaternion = std::array<double, 4>; ///< x, y, z, w

    enum class Turn { none, linear, arc };

    Quaternion between(double fraction) const;

    const Placement* from_;
    const Placement* to_;
    Turn turn_ = Turn::none;
    Quaternion start_{}, end_{};
    double angle_ = 0; ///< between the quaternions, radians
    double sign_ = 1;  ///< -1 where both blocks mirror
};

} // namespace orvane::embedded
