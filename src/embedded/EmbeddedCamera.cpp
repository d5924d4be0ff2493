#include "embedded/EmbeddedObject.h"
#include "embedded/EmbeddedView.h"
#include "embedded/HostAnswers.h"

namespace orvane::embedded {

namespace {

class EmbeddedCamera final : public EmbeddedObject<HostCamera, CameraRecord> {
public:
    using EmbeddedObject::EmbeddedObject;

    HostRef<HostMathPoint> cameraPosition() const override { return makePoint(record_.position); }
    HostRef<HostMathVector> cameraUp() const override { return makeVector(record_.up); }
    HostRef<HostMathVector> cameraDirection() const override { return makeVector(record_.direction); }
    double cameraAspect() const override { return record_.aspect; }
    double cameraFieldOfView() const override { return record_.fieldOfView; }
    std::int16_t cameraPerspective() const override { return toFlag(record_.perspective); }

    const CameraRecord& record() const { return record_; }
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
