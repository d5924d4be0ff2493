#include "embedded/EmbeddedSession.h"
#include "embedded/HostAnswers.h"
#include "host/HostMotionStudyManager.h"

#include <utility>

namespace orvane::embedded {

namespace {

constexpr std::int16_t kDone = -1;
constexpr std::int16_t kFailed = 0;

class EmbeddedStudyProperties final : public HostMotionStudyProperties {
public:
    explicit EmbeddedStudyProperties(std::int32_t frameRate) : frameRate_(frameRate) {}

    std::int32_t readFrameRate() const override { return frameRate_; }

private:
    std::int32_t frameRate_;
};

class EmbeddedMotionStudy final : public HostMotionStudy {
public:
    EmbeddedMotionStudy(SessionRef session, StudyRef study)
        : session_(std::move(session)), study_(std::move(study)) {}

    std::int16_t enterStudy() override {
        session_->studies->enter(study_);
        return kDone;
    }
    std::int16_t leaveStudy() override { return session_->studies->leave(study_) ? kDone : kFailed; }
    double readStudyDuration() const override { return study_->duration; }
    double readStudyTime() const override { return study_->time; }
    std::int16_t seekStudyTime(double seconds) override {
        session_->studies->seek(study_, seconds);
        return kDone;
    }
    HostRef<HostMotionStudyProperties> studyProperties(std::int32_t) const override {
        return makeHostObject<EmbeddedStudyProperties>(study_->frameRate);
    }

    std::int16_t generateExplodeMotion(bool explode, double duration, double start) override {
        return session_->studies->generateExplodeMotion(*study_, explode, duration, start) ? kDone : kFailed;
    }
    void nameStudy(const std::u16string& name) override { study_->name = name; }
    std::int16_t computeStudy() override { return kDone; }

    const void* identity() const noexcept override { return study_.get(); }

private:
    SessionRef session_;
    StudyRef study_;
};

class EmbeddedMotionStudyManager final : public HostMotionStudyManager {
public:
    explicit EmbeddedMotionStudyManager(SessionRef session) : session_(std::move(session)) {}

    std::int32_t countStudies() const override { return countOf(session_->studies->all()); }
    std::vector<std::u16string> listStudyNames() const override {
        std::vector<std::u16string> names;
        for (const StudyRef& study : session_->studies->all()) {
            names.push_back(study->name);
        }
        return names;
    }
    HostRef<HostMotionStudy> findStudyByName(const std::u16string& name) override {
        return hostStudy(session_->studies->find(name));
    }
    HostRef<HostMotionStudy> createStudy() override {
        const auto study = std::make_shared<EmbeddedStudy>();
        HostRef<HostMotionStudy> created = hostStudy(study); // first: no study stays behind that nobody holds
        session_->studies->add(study);
        return created;
    }
    std::int16_t deleteStudyByName(const std::u16string& name) override {
        return session_->studies->remove(name) ? kDone : kFailed;
    }

private:
    HostRef<HostMotionStudy> hostStudy(const StudyRef& study) const {
        return study ? makeHostObject<EmbeddedMotionStudy>(session_, study) : HostRef<EmbeddedMotionStudy>();
    }

    SessionRef session_;
};

} // namespace

HostRef<HostObject> makeStudyManager(const SessionRef& session) {
    return makeHostObject<EmbeddedMotionStudyManager>(session);
}

} // namespace orvane::embedded
