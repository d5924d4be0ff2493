#include "embedded/EmbeddedView.h"
#include "embedded/HostFlag.h"

#include <utility>

namespace orvane::embedded {

namespace {

class EmbeddedCamera final : public HostCamera {
public:
    EmbeddedCamera(SessionRef session, const CameraRecord& record)
        : session_(std::move(session)), record_(record) {}

    HostRef<HostMathPoint> cameraPosition() const override { return makePoint(record_.position); }
    HostRef<HostMathVector> cameraUp() const override { return makeVector(record_.up); }
    HostRef<HostMathVector> cameraDirection() const override { return makeVector(record_.direction); }
    double cameraAspect() const override { return record_.aspect; }
    double cameraFieldOfView() const override { return record_.fieldOfView; }
    std::int16_t cameraPerspective() const override { return toFlag(record_.perspective); }

    const void* identity() const noexcept override { return &record_; }
    const CameraRecord& record() const { return record_; }

private:
    SessionRef session_;
    const CameraRecord& record_;
};

} // namespace

HostRef<HostCamera> makeCamera(const SessionRef& session, const CameraRecord* camera) {
    return camera ? makeHostObject<EmbeddedCamera>(session, *camera) : HostRef<EmbeddedCamera>();
}

const CameraRecord* cameraRecord(const HostRef<HostCamera>& camera) {
    const HostRef<EmbeddedCamera> embedded = inRole<EmbeddedCamera>(camera);
    return embedded ? &embedded->record() : nullptr;
}

} // namespace orvane::embedded
