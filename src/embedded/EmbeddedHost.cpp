#include "embedded/EmbeddedHost.h"

#include "embedded/EmbeddedSession.h"

#include <utility>

namespace orvane {

namespace {

class EmbeddedMathUtility final : public HostMathUtility {
public:
    HostRef<HostTransform> createTransform(const TransformNumbers& numbers) const override {
        return makeTransform(numbers);
    }
};

class EmbeddedApplication final : public HostApplication {
public:
    explicit EmbeddedApplication(SessionRef session) : session_(std::move(session)) {}

    HostRef<HostModelDoc> activeDocument() override { return makeModelDoc(session_, session_->opened()); }
    void registerTrackingId(const std::u16string&, std::int32_t&) override {}
    HostRef<HostMathUtility> mathUtility() override { return makeHostObject<EmbeddedMathUtility>(); }

private:
    SessionRef session_;
};

} // namespace

HostRef<HostApplication> openEmbeddedHost(Model model) {
    return makeHostObject<EmbeddedApplication>(std::make_shared<EmbeddedSession>(std::move(model)));
}

} // namespace orvane
