#include "embedded/EmbeddedHost.h"

#include "embedded/EmbeddedSession.h"
#include "embedded/HostAnswers.h"

#include <utility>

namespace orvane {

namespace embedded {

namespace {

class EmbeddedApplication final : public HostApplication {
public:
    explicit EmbeddedApplication(SessionRef session) : session_(std::move(session)) {}

    std::u16string revisionText() override { return u"28"; }
    HostRef<HostModelDoc> activeDocument() override { return makeModelDoc(session_, session_->opened()); }
    std::int32_t openDocumentCount() override { return countOf(session_->model.documents); }
    std::vector<HostRef<HostModelDoc>> openDocuments() override {
        std::vector<HostRef<HostModelDoc>> documents;
        for (const auto& document : session_->model.documents) {
            documents.push_back(makeModelDoc(session_, *document));
        }
        return documents;
    }
    std::u16string hostInstallFolder() override { return session_->hostInstallFolder; }
    void registerTrackingId(const std::u16string&, std::int32_t&) override {}
    HostRef<HostMathUtility> mathUtility() override { return makeMathUtility(); }

private:
    SessionRef session_;
};

} // namespace

} // namespace embedded

HostRef<HostApplication> openEmbeddedHost(Model model, std::u16string hostInstallFolder) {
    return makeHostObject<embedded::EmbeddedApplication>(
        std::make_shared<embedded::EmbeddedSession>(std::move(model), std::move(hostInstallFolder)));
}

} // namespace orvane
