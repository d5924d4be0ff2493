#include "embedded/EmbeddedSession.h"
#include "embedded/PlacementMath.h"

namespace orvane::embedded {

namespace {

class EmbeddedTransform final : public HostTransform {
public:
    explicit EmbeddedTransform(const Placement& placement) : placement_(placement) {}

    HostRef<HostTransform> multiply(const HostTransform& other) const override {
        return makeTransform(multiplyPlacements(placement_, other.readArray()));
    }
    HostRef<HostTransform> inverse() const override { return makeTransform(invertPlacement(placement_)); }
    TransformNumbers readArray() const override { return placement_; }

private:
    Placement placement_;
};

} // namespace

HostRef<HostTransform> makeTransform(const Placement& placement) {
    return makeHostObject<EmbeddedTransform>(placement);
}

} // namespace orvane::embedded
