#include "embedded/FittedView.h"

#include "embedded/PlacementMath.h"

#include <algorithm>
#include <cmath>

namespace orvane::embedded {

namespace {

/// How near and how far cameras see that are made from a view, metres.
constexpr double kNearest = 0.01, kFarthest = 100;
/// Room around the ball in which the box lies.
constexpr double kMargin = 1.1;

struct Ball {
    Vector3 center{};
    double radius = 0;
};

Ball ballAround(const HostBox& box) {
    Ball ball;
    for (std::size_t i = 0; i < 3; ++i) {
        ball.center[i] = (box[i] + box[3 + i]) / 2;
    }
    ball.radius = std::hypot(box[3] - box[0], box[4] - box[1], box[5] - box[2]) / 2;
    return ball;
}

/// From the ball's centre to the eye: four radii, but so that the ball keeps away from the nearest distance,
/// and within the farthest one as long as a picture of it can be had from there.
double eyeDistance(double radius) {
    const double distance = std::max(4 * radius, radius + 2 * kNearest);
    return radius < 0.4 * kFarthest ? std::min(distance, kFarthest - radius) : distance;
}

/// From the model's space to that of an eye in the direction (1, 1, 1), y upward; for row vectors.
Placement isometricOrientation() {
    const double a = 1 / std::sqrt(2.0), b = 1 / std::sqrt(6.0), c = 1 / std::sqrt(3.0);
    return {a, -b, c, 0, 2 * b, c, -a, -b, c, 0, 0, 0, 1, 0, 0, 0};
}

} // namespace

ViewRecord fittedView(const std::optional<HostBox>& box) {
    constexpr HostBox kOneMetre = {-0.5, -0.5, -0.5, 0.5, 0.5, 0.5};
    Ball ball = ballAround(box.value_or(kOneMetre));
    if (!(ball.radius > 0)) {
        ball.radius = ballAround(kOneMetre).radius;
    }
    const double distance = eyeDistance(ball.radius);
    const double tangent =
        kMargin * ball.radius / std::sqrt((distance - ball.radius) * (distance + ball.radius));

    ViewRecord view;
    const double aspect = static_cast<double>(view.width) / view.height;
    view.orientation = isometricOrientation();
    // The view's space is in metres, its origin in the middle of the ball.
    const Vector3 center = transformPoint(view.orientation, ball.center);
    view.transform = view.orientation;
    // The zoom is the part of the picture's height that a metre takes there.
    view.scale = 1 / (2 * distance * tangent);
    for (std::size_t i = 0; i < 3; ++i) {
        view.transform[9 + i] = -center[i];
        view.translation[i] = -center[i] * view.scale;
    }
    view.eyePoint = {0, 0, distance};
    // A plane distance counts for a width and an aspect of 1.
    view.planeDistance = distance / (aspect * aspect);
    return view;
}

} // namespace orvane::embedded
