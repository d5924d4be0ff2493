#include "embedded/EmbeddedSession.h"
#include "embedded/PlacementMath.h"

namespace orvane::embedded {

namespace {

class EmbeddedPoint final : public HostMathPoint {
public:
    explicit EmbeddedPoint(const Vector3& coordinates) : coordinates_(coordinates) {}

    HostRef<HostMathPoint> transformBy(const HostTransform& transform) const override {
        return makePoint(transformPoint(transform.readArray(), coordinates_));
    }
    HostRef<HostMathPoint> scaleBy(double factor) const override {
        return makePoint({coordinates_[0] * factor, coordinates_[1] * factor, coordinates_[2] * factor});
    }
    Vector3 readPoint() const override { return coordinates_; }

private:
    Vector3 coordinates_;
};

class EmbeddedVector final : public HostMathVector {
public:
    explicit EmbeddedVector(const Vector3& coordinates) : coordinates_(coordinates) {}

    HostRef<HostMathPoint> asPoint() const override { return makePoint(coordinates_); }
    Vector3 readVector() const override { return coordinates_; }

private:
    Vector3 coordinates_;
};

class EmbeddedMathUtility final : public HostMathUtility {
public:
    HostRef<HostTransform> createTransform(const TransformNumbers& numbers) const override {
        return makeTransform(numbers);
    }
    HostRef<HostMathPoint> createPoint(const Vector3& coordinates) const override {
        return makePoint(coordinates);
    }
};

} // namespace

HostRef<HostMathPoint> makePoint(const Vector3& coordinates) {
    return makeHostObject<EmbeddedPoint>(coordinates);
}

HostRef<HostMathVector> makeVector(const Vector3& coordinates) {
    return makeHostObject<EmbeddedVector>(coordinates);
}

HostRef<HostMathUtility> makeMathUtility() {
    return makeHostObject<EmbeddedMathUtility>();
}

} // namespace orvane::embedded
