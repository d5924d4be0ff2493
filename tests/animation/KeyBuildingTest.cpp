#include "animation/KeyBuilding.h"

#include "support/MotionFixture.h"

#include <vector>

namespace orvane::animation {
namespace {

using testing::ElementsAre;
using testing::Pair;

struct KeyBuilding : MotionFixture {
    KeyBuilding() {
        ModelBuilder builder;
        ModelDocument& assembly = builder.assembly(u"top.tfgasm");
        assembly.components = {ModelBuilder::component(u"a", nullptr, moved(0, 0, 7))};
        open(builder.take());
        rootTransform = transform(moved(0, 100, 0));
    }

    /// A track of a node: one key a placement, in frames 0, 1, 2 ... at as many seconds.
    NodeXformTrack& track(std::int32_t nodeId, const std::vector<Placement>& placements) {
        animation.trackByNode[nodeId] = animation.xforms.size();
        NodeXformTrack& made = animation.xforms.emplace_back();
        made.node = nodeId;
        made.interpolation = Interpolation::step;
        for (const Placement& placement : placements) {
            const auto frame = static_cast<std::int32_t>(made.keys.size());
            made.keys.push_back({transform(placement), static_cast<double>(frame), frame});
        }
        return made;
    }

    NodeXformTrack& trackAlongX(const std::vector<double>& xs) {
        std::vector<Placement> placements;
        for (const double x : xs) {
            placements.push_back(moved(x, 0, 0));
        }
        return track(node("n").id, placements);
    }

    /// Time and x of the keys of the only channel, or nothing where there is none.
    std::vector<std::pair<double, double>> built(bool accumulate = false) {
        buildKeys(animation, motion(), accumulate);
        std::vector<std::pair<double, double>> keys;
        EXPECT_LE(animation.channels.size(), 1u);
        for (const KeyedChannel& channel : animation.channels) {
            EXPECT_EQ(channel.record.interpolation, Interpolation::step);
            for (const ChannelKey& key : channel.keys) {
                keys.emplace_back(key.time, key.x);
            }
        }
        return keys;
    }

    AnimationTracks animation;
};

TEST_F(KeyBuilding, KeepsTheEndsOfRunsOfEqualValues) {
    const struct {
        const char* why;
        std::vector<double> xs;
        std::vector<std::pair<double, double>> kept;
    } cases[] = {
        {"only the first key of a run that lasts to the end stays",
         {1, 1, 1, 2, 2, 3, 3, 3},
         {{0, 1}, {2, 1}, {3, 2}, {4, 2}, {5, 3}}},
        {"keys are compared with the last kept one",
         {0, 0.00006, 0.0001, 0.00013, 0.0002},
         {{0, 0}, {2, 0}, {3, 0.00013}}},
        {"what never moves is left out", {5, 5, 5}, {}},
        {"the smallest change", {5, 6}, {{0, 5}, {1, 6}}},
    };
    for (const auto& [why, xs, kept] : cases) {
        animation = {};
        trackAlongX(xs);
        EXPECT_EQ(built(), kept) << why;
    }
}

TEST_F(KeyBuilding, TakesTheFrameNumberForATimeBelowZero) {
    trackAlongX({1, 2, 3}).keys[1].time = -0.5;
    animation.xforms[0].keys[2].time = -0.0;
    EXPECT_THAT(built(), ElementsAre(Pair(0, 1), Pair(1, 2), Pair(0, 3)));
}

TEST_F(KeyBuilding, PutsTranslationBeforeRotationTrackByTrack) {
    const std::int32_t parent = node("p").id;
    const std::int32_t child = node("p/c", parent).id;
    track(child, {moved(1, 0, 0), turned(2, 0, 0)});
    track(parent, {moved(0, 0, 0), moved(0, 0, 1)});
    buildKeys(animation, motion(), false);
    std::vector<std::pair<std::int32_t, ChannelPath>> order;
    for (const KeyedChannel& channel : animation.channels) {
        order.emplace_back(channel.record.node, channel.record.path);
    }
    ASSERT_THAT(order, ElementsAre(Pair(child, ChannelPath::translation), Pair(child, ChannelPath::rotation),
                                   Pair(parent, ChannelPath::translation)));
    EXPECT_EQ(animation.channels[0].keys[1].z, -1) << "relative to where the parent is in the same frame";
    EXPECT_GT(animation.channels[1].keys[1].z, 0.7) << "about z in the sense of the host";
}

/// Keys of a parent in frames 2, 2, 5 and 7; the x of a placement is the position of its key.
struct ParentPlacement : KeyBuilding {
    ParentPlacement() {
        NodeXformTrack& made = trackAlongX({0, 1, 2, 3});
        const std::int32_t frames[] = {2, 2, 5, 7};
        for (std::size_t i = 0; i < 4; ++i) {
            made.keys[i].frame = frames[i];
        }
    }

    /// The numbers of the placement at a frame.
    std::optional<TransformNumbers> at(std::int32_t frame) {
        const HostRef<HostTransform> found =
            ParentPlacements(animation, motion(), 0).parentTransformAt(frame);
        return found ? std::optional(found->readArray()) : std::nullopt;
    }
};

TEST_F(ParentPlacement, IsThatOfTheFirstKeyAtTheFrameElseOfTheOneBefore) {
    const std::pair<std::int32_t, double> expected[] = {{2, 0}, {3, 1}, {4, 1}, {5, 2},
                                                        {6, 2}, {7, 3}, {99, 3}};
    for (const auto& [frame, x] : expected) {
        EXPECT_EQ(at(frame), moved(x, 0, 0)) << frame;
    }
}

TEST_F(ParentPlacement, RestsWhereThereIsNoKeyYet) {
    EXPECT_EQ(at(1), std::nullopt);
    origins[0].world = transform(moved(9, 9, 9));
    EXPECT_EQ(at(1), moved(9, 9, 9));
    origins[0].component = configuration->getRootComponent()->getChildren().at(0);
    EXPECT_EQ(at(1), moved(0, 100, 7)) << "through the root transform";
    animation.trackByNode.clear();
    EXPECT_EQ(at(5), moved(0, 100, 7));
}

TEST_F(KeyBuilding, MultipliesStepsUp) {
    trackAlongX({1, 1, 2});
    origins[0].world = transform(moved(10, 0, 0));
    EXPECT_THAT(built(true), ElementsAre(Pair(0, 11), Pair(1, 12), Pair(2, 14)))
        << "from the node's own placement on";
}

} // namespace
} // namespace orvane::animation
