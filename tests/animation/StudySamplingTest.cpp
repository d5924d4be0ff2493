#include "animation/StudySampling.h"

#include "support/MotionFixture.h"

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace orvane::animation {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::StartsWith;

class Rate final : public HostMotionStudyProperties {
public:
    explicit Rate(std::int32_t rate) : rate_(rate) {}
    std::int32_t readFrameRate() const override { return rate_; }

private:
    std::int32_t rate_;
};

/// A study that moves nothing and writes down what is asked of it. Without a rate it has no properties.
class LoggedStudy final : public HostMotionStudy {
public:
    LoggedStudy(double studyDuration, std::optional<std::int32_t> frameRate)
        : duration_(studyDuration), rate_(frameRate) {}

    std::int16_t enterStudy() override { return note("enter"); }
    std::int16_t leaveStudy() override { return note("leave"); }
    double readStudyDuration() const override { return duration_; }
    double readStudyTime() const override { return 0.125; }
    std::int16_t seekStudyTime(double seconds) override {
        times.push_back(seconds);
        return note("seek");
    }
    HostRef<HostMotionStudyProperties> studyProperties(std::int32_t kind) const override {
        return kind == 1 && rate_ ? makeHostObject<Rate>(*rate_) : HostRef<Rate>();
    }
    std::int16_t generateExplodeMotion(bool, double, double) override { return note("generate"); }
    void nameStudy(const std::u16string&) override { note("name"); }
    std::int16_t computeStudy() override { return note("compute"); }

    std::string log;
    std::vector<double> times;

private:
    std::int16_t note(const char* event) {
        (log += event) += " ";
        return 0;
    }

    double duration_;
    std::optional<std::int32_t> rate_;
};

struct StudySampling : MotionFixture {
    StudySampling() {
        ModelBuilder builder;
        ModelDocument& assembly = builder.assembly(u"top.tfgasm");
        ComponentRecord a = ModelBuilder::component(u"a", nullptr, moved(1, 0, 0));
        a.components = {ModelBuilder::component(u"b", nullptr, moved(0, 2, 0))};
        ComponentRecord lost = ModelBuilder::component(u"lost");
        lost.components = {ModelBuilder::component(u"found", nullptr, moved(0, 0, 3))};
        ComponentRecord nothing = {.name = u"nothing", .placement = {}};
        ComponentRecord placeless = {
            .name = u"nowhere", .placement = {}, .placementFallback = moved(0, 0, 4)};
        assembly.components = {a, lost, placeless, nothing, a};
        open(builder.take());
        rootTransform = transform(moved(100, 0, 0));
        top = node("top").id;
        node("a/b", node("a", top).id);
        for (const char* name : {"lost/found", "nowhere", "nothing", "a"}) {
            node(name, top);
        }
    }

    void sample(LoggedStudy& study) { sampleStudy(study, u"St\u00FCdy", motion()); }

    std::int32_t top = -1;
};

TEST_F(StudySampling, TakesFramesFromZeroAndOneAtTheEndAndPutsTheClockBack) {
    constexpr std::int32_t kInexactRate = 16'777'217; // the single precision number is 16,777,216
    const double step = 1.0 / 16'777'216;
    const struct {
        double duration;
        std::optional<std::int32_t> rate;
        std::vector<double> times;
    } cases[] = {{0.5, 4, {0, 0.25, 0.5, 0.125}},
                 {2.5 * step, kInexactRate, {0, step, 2 * step, 2.5 * step, 0.125}},
                 {3, 0, {0, 3, 0.125}},
                 {3, std::nullopt, {0, 3, 0.125}}};
    for (const auto& [duration, rate, times] : cases) {
        LoggedStudy study(duration, rate);
        sample(study);
        EXPECT_EQ(study.times, times);
        EXPECT_THAT(study.log, StartsWith("enter seek"));
        EXPECT_THAT(study.log, EndsWith("seek leave "));
    }
    EXPECT_TRUE(scene.animations.empty() && document.animations.empty()) << "nothing moved";
}

TEST_F(StudySampling, AddsTheSingleStepUp) {
    LoggedStudy drifting(1, 10);
    sample(drifting);
    ASSERT_EQ(drifting.times.size(), 13u) << "ten steps of a tenth end a hair short of the second";
    EXPECT_LT(drifting.times[10], 1);
    EXPECT_EQ(drifting.times[11], 1);
}

TEST_F(StudySampling, LeavesOutWhatHasNoDurationAndRefusesTooManyFrames) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const double duration : {0.0, -1.0, std::nan("")}) {
        LoggedStudy study(duration, 24);
        sample(study);
        EXPECT_EQ(study.log, "enter ") << "and lets it be";
    }
    EXPECT_THAT(report.warnings, IsEmpty());
    const std::pair<double, std::int32_t> endless[] = {
        {10'000'001, 1}, {kInfinity, 24}, {1, -1}, {kInfinity, 0}};
    for (const auto& [duration, rate] : endless) {
        LoggedStudy study(duration, rate);
        sample(study);
        EXPECT_EQ(study.log, "enter leave ") << duration << " " << rate;
    }
    EXPECT_THAT(report.warnings, ElementsAre(HasSubstr("Study is left out")));
    EXPECT_FALSE(report.hasFailed());
}

TEST_F(StudySampling, RecordsWhereComponentsWithNodesStand) {
    std::vector<SampledComponent> components;
    listComponents(configuration->getRootComponent(), -1, motion().nodeNames, components);
    AnimationTracks animation;
    captureFrame(1, 0.5, components, rootTransform, animation);
    std::vector<std::pair<std::string, double>> seen;
    for (const NodeXformTrack& track : animation.xforms) {
        for (const XformKey& key : track.keys) {
            EXPECT_EQ(std::pair(key.frame, key.time), std::pair(1, 0.5));
            const TransformNumbers m = key.global->readArray();
            seen.emplace_back(document.nodes[static_cast<std::size_t>(track.node)]->fullName,
                              m[9] + m[10] + m[11]);
        }
    }
    EXPECT_THAT(seen, ElementsAre(Pair("a", 101), Pair("a", 101), Pair("a/b", 103), Pair("a/b", 103),
                                  Pair("lost/found", 3), Pair("nowhere", 104)))
        << "equal names feed the first node; below a component without a node the root transform is left out";
}

TEST_F(StudySampling, FindsTheFirstNodeDepthFirstAndNoCameras) {
    GltfNode& camera = node("");
    camera.camera = 0;
    scene.nodes.insert(scene.nodes.begin(), camera.id);
    node("lost", node("deep", top).id);
    const std::int32_t late = node("lost").id;
    ModelBuilder builder;
    builder.assembly(u"t.tfgasm").components = {ModelBuilder::component(u"lost"),
                                                ModelBuilder::component(u"")};
    open(builder.take());
    std::vector<SampledComponent> components;
    listComponents(configuration->getRootComponent(), -1, motion().nodeNames, components);
    ASSERT_EQ(components.size(), 1u);
    EXPECT_EQ(components[0].node, late - 1);
}

} // namespace
} // namespace orvane::animation
