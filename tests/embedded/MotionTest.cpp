#include "embedded/EmbeddedHost.h"
#include "embedded/PlacementMath.h"
#include "host/HostMotionStudyManager.h"
#include "support/ModelBuilder.h"

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>
#include <numeric>

namespace orvane::embedded {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

TrackRecord track(const std::u16string& component, std::vector<TrackKey> keys,
                  TrackInterpolation interpolation = TrackInterpolation::linear) {
    return {component, interpolation, std::move(keys)};
}

/// A turn about z for row vectors, then a scale.
Placement spun(double degrees, double scale = 1) {
    const double angle = degrees * std::numbers::pi / 180;
    Placement placement = kIdentityPlacement;
    placement[0] = placement[4] = std::cos(angle);
    placement[1] = std::sin(angle);
    placement[3] = -std::sin(angle);
    placement[12] = scale;
    return placement;
}

/// An arm on a turned base, with a hand on it, and a study that moves both.
struct Motion : testing::Test {
    Motion() {
        assembly.components = {ModelBuilder::component(u"base", nullptr, turned(10, 0, 0))};
        assembly.components[0].components = {ModelBuilder::component(u"arm", nullptr, moved(1, 2, 3))};
        assembly.components[0].components->front().components = {
            ModelBuilder::component(u"hand", nullptr, moved(0.1, 0.7, 0.3))};
    }

    void open() {
        host = openEmbeddedHost(builder.take());
        document = host->activeDocument();
        manager = inRole<HostMotionStudyManager>(document->extension()->studyManagerObject());
    }

    /// Enters a study of these tracks.
    void enter(std::vector<TrackRecord> tracks) {
        assembly.motionStudies.push_back(
            {.name = u"S", .duration = 4, .time = 0.5, .tracks = std::move(tracks)});
        open();
        study = manager->findStudyByName(u"S");
        EXPECT_NE(study->enterStudy(), 0);
    }

    /// What the component at that depth in the chain answers.
    TransformNumbers placement(int level) const {
        HostRef<HostComponent> component = document->getActiveConfiguration()->getRootComponent();
        for (int i = 0; i <= level; ++i) {
            component = component->getChildren().at(0);
        }
        const HostRef<HostTransform> answered = component->getPlacement(-1);
        return answered ? answered->readArray() : TransformNumbers{};
    }
    TransformNumbers placementAt(double time, int level = 0) const {
        study->seekStudyTime(time);
        return placement(level);
    }

    ModelBuilder builder;
    ModelDocument& assembly = builder.assembly(u"robot.tfgasm");
    HostRef<HostApplication> host;
    HostRef<HostModelDoc> document;
    HostRef<HostMotionStudyManager> manager;
    HostRef<HostMotionStudy> study;
};

TEST_F(Motion, MovesFromKeyToKeyAndHoldsBeyondThem) {
    const Placement mirror = {-1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0};
    const Placement turnedMirror = multiplyPlacements(mirror, spun(40));
    enter({track(
        u"base",
        {{1, spun(350)}, {2, spun(30, 3)}, {2.5, moved(4, 0, 0)}, {3.5, mirror}, {4.5, turnedMirror}})});
    EXPECT_EQ(placementAt(0), spun(350)) << "before the first key";
    EXPECT_EQ(placementAt(2), spun(30, 3)) << "at a key";
    EXPECT_EQ(placementAt(99), turnedMirror) << "after the last key";
    EXPECT_THAT(placementAt(1.75), Pointwise(DoubleNear(1e-12), spun(20, 2.5))) << "along the shorter arc";
    EXPECT_THAT(placementAt(3), ElementsAre(0, 0, 0, 0, 1, 0, 0, 0, 1, 2, 0, 0, 1, 0, 0, 0))
        << "numbers move by themselves where there is no arc";
    EXPECT_THAT(placementAt(3.75), Pointwise(DoubleNear(1e-12), multiplyPlacements(mirror, spun(10))));
}

TEST_F(Motion, TurnsAboutEveryAxis) {
    const std::vector<TrackKey> keys = {{0, kIdentityPlacement},
                                        {1, {1, 0, 0, 0, -1, 0, 0, 0, -1, 0, 0, 0, 1, 0, 0, 0}},
                                        {2, {-1, 0, 0, 0, 1, 0, 0, 0, -1, 0, 0, 0, 1, 0, 0, 0}},
                                        {3, {-1, 0, 0, 0, -1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0}}};
    enter({track(u"base", keys)});
    for (std::size_t i = 0; i < 3; ++i) {
        const TransformNumbers m = placementAt(static_cast<double>(i) + 0.25);
        const Placement& before = keys[i].placement;
        const double trace = std::inner_product(before.begin(), before.begin() + 9, m.begin(), 0.0);
        EXPECT_NEAR(trace, 1 + std::sqrt(2), 1e-12) << "a half turn from key to key, after key " << i;
    }
}

TEST_F(Motion, StepsWhereATrackSaysSo) {
    enter({track(u"base", {{1, moved(1, 0, 0)}, {2, moved(2, 0, 0)}}, TrackInterpolation::step)});
    EXPECT_EQ(placementAt(1.99)[9], 1);
    EXPECT_EQ(placementAt(2)[9], 2);
}

TEST_F(Motion, AnswersPlacementsMultipliedFromTheComponentUp) {
    const Placement base = multiplyPlacements(moved(10, 0.3, 0), spun(33, 1.1));
    const Placement arm = multiplyPlacements(moved(1, 2, 3), spun(77, 1.3));
    const Placement hand = multiplyPlacements(moved(0.1, 0.7, 0.3), spun(9, 0.7));
    assembly.components[0].placement = base;
    enter({track(u"base/arm", {{0, arm}}), track(u"base/arm/hand", {{0, hand}})});
    EXPECT_EQ(placementAt(1, 2), multiplyPlacements(multiplyPlacements(hand, arm), base))
        << "to the last bit";
    EXPECT_NE(placement(2), multiplyPlacements(hand, multiplyPlacements(arm, base)));
}

TEST_F(Motion, PutsPlacementsBackWhenItIsLeft) {
    enter({track(u"base", {{0, moved(5, 0, 0)}})});
    const Placement handAtRest =
        multiplyPlacements(multiplyPlacements(moved(0.1, 0.7, 0.3), moved(1, 2, 3)), turned(10, 0, 0));
    EXPECT_EQ(study->readStudyTime(), 0.5);
    EXPECT_EQ(placement(2), handAtRest) << "nothing moves before a time is sought";
    EXPECT_EQ(placementAt(2), moved(5, 0, 0));
    EXPECT_NE(placement(2), handAtRest);
    document->getActiveConfiguration()->applyDisplayState(u"Display State 1");
    EXPECT_EQ(placement(0), moved(5, 0, 0)) << "a display state does not end a study";
    EXPECT_NE(study->leaveStudy(), 0);
    EXPECT_EQ(placement(2), handAtRest);
    EXPECT_EQ(study->leaveStudy(), 0);
    EXPECT_EQ(placementAt(3), turned(10, 0, 0)) << "a study that is not entered moves nothing";
    EXPECT_EQ(study->readStudyTime(), 3);
}

TEST_F(Motion, LeavesAStudyWhenAnotherOneIsEntered) {
    assembly.motionStudies = {{.name = u"Other"}};
    enter({track(u"base", {{0, moved(1, 0, 0)}})});
    EXPECT_EQ(placementAt(0), moved(1, 0, 0));
    manager->findStudyByName(u"Other")->enterStudy();
    EXPECT_EQ(placement(0), turned(10, 0, 0));
    EXPECT_EQ(study->leaveStudy(), 0);
}

TEST_F(Motion, GivesAPlacementToAComponentWithoutOne) {
    assembly.components[0].placement.reset();
    enter({track(u"base", {{0, moved(5, 0, 0)}})});
    EXPECT_EQ(placement(0), TransformNumbers{});
    EXPECT_EQ(placementAt(0), moved(5, 0, 0));
    EXPECT_EQ(placement(1), moved(6, 2, 3));
}

struct ExplodedView : Motion {
    /// Enters the next view's study, made as an export makes it.
    void play(bool explode = true) {
        study = manager->createStudy();
        study->generateExplodeMotion(explode, 4, 0);
        study->nameStudy(u"Temporary");
        study->computeStudy();
        study->enterStudy();
    }
    std::vector<double> positionAt(double time, int level = 0) const {
        const TransformNumbers m = placementAt(time, level);
        return {m[9], m[10], m[11]};
    }
};

TEST_F(ExplodedView, MovesItsStepsOneAfterTheOtherInTheSpaceOfTheRoot) {
    assembly.explodedViews = {{.name = u"E",
                               .frameRate = 7,
                               .steps = {{{u"base/arm"}, {8, 0, 0}},
                                         {{u"base/arm/hand", u"base"}, {0, 4, 0}},
                                         {{u"base/arm"}, {0, 0, 1}},
                                         {}}}};
    open();
    play();
    EXPECT_THAT(positionAt(0, 1), ElementsAre(8, 1, 3)) << "the base is turned";
    EXPECT_THAT(positionAt(1.5, 1), ElementsAre(16, 3, 3)) << "moves with its parent";
    EXPECT_THAT(positionAt(2.75, 1), ElementsAre(16, 5, 3.75));
    EXPECT_THAT(positionAt(4, 1), ElementsAre(16, 5, 4));
    EXPECT_THAT(positionAt(2), ElementsAre(10, 4, 0));
    const std::vector<double> hand = positionAt(1, 2);
    EXPECT_THAT(positionAt(2, 2), ElementsAre(hand[0], hand[1] + 4, hand[2])) << "once, not also by itself";
    EXPECT_EQ(study->readStudyDuration(), 4);
    EXPECT_EQ(study->studyProperties(1)->readFrameRate(), 7);
}

TEST_F(ExplodedView, GoesBackTogetherTheSameWay) {
    assembly.explodedViews = {{.name = u"E", .steps = {{{u"base"}, {4, 0, 0}}, {{u"base"}, {0, 8, 0}}}}};
    open();
    play(false);
    EXPECT_THAT(positionAt(0), ElementsAre(14, 8, 0));
    EXPECT_THAT(positionAt(3), ElementsAre(12, 0, 0));
    EXPECT_THAT(positionAt(4), ElementsAre(10, 0, 0));
}

TEST_F(ExplodedView, TakesTurnsAndItsStudyGoesBeforeOneOfTheSameName) {
    assembly.explodedViews = {{.name = u"First", .steps = {{{u"base"}, {1, 0, 0}}}},
                              {.name = u"Second", .steps = {{{u"base"}, {2, 0, 0}}}}};
    assembly.motionStudies = {{.name = u"Temporary", .duration = 9}};
    open();
    EXPECT_THAT(document->assemblyInterface()->listExplodedViewNames(), ElementsAre(u"First", u"Second"));
    for (const double moved : {1.0, 2.0}) {
        play();
        EXPECT_THAT(positionAt(4), ElementsAre(10 + moved, 0, 0));
        EXPECT_EQ(manager->countStudies(), 2);
        EXPECT_NE(manager->deleteStudyByName(u"Temporary"), 0);
        EXPECT_EQ(placement(0), turned(10, 0, 0)) << "a study that is taken out is left";
    }
    EXPECT_EQ(manager->createStudy()->generateExplodeMotion(true, 4, 0), 0) << "no view is left";
    document->assemblyInterface()->listExplodedViewNames();
    play();
    EXPECT_THAT(positionAt(4), ElementsAre(11, 0, 0)) << "the first again";
    EXPECT_NE(manager->deleteStudyByName(u"Temporary"), 0);
    EXPECT_EQ(manager->findStudyByName(u"Temporary")->readStudyDuration(), 9);
    EXPECT_EQ(manager->deleteStudyByName(u"Unknown"), 0);
}

} // namespace
} // namespace orvane::embedded
