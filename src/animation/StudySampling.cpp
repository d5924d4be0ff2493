#include "animation/StudySampling.h"

#include "animation/KeyBuilding.h"
#include "document/AsciiNames.h"
#include "host/PutBack.h"

#include <utility>

namespace orvane {

namespace {

constexpr std::int16_t kTrue = -1;
constexpr std::int32_t kStudySettings = 1;

/// Seconds from one frame to the next. A rate goes through single precision; 0 gives an infinite step.
double frameStep(const HostMotionStudy& study) {
    const HostRef<HostMotionStudyProperties> properties = study.studyProperties(kStudySettings);
    const std::int32_t fps = properties ? properties->readFrameRate() : 0;
    return 1.0 / static_cast<double>(static_cast<float>(fps));
}

/// Whether a clock that moves on by `step` comes to the end of the study soon enough.
bool hasFewFrames(double duration, double step) {
    const double frames = duration / step;
    return step > 0 && frames <= kMostFrames;
}

HostRef<HostTransform> placementNow(const SampledComponent& sampled,
                                    const HostRef<HostTransform>& rootTransform) {
    if (!sampled.answered || !sampled.isBelowNode) {
        return sampled.answered;
    }
    return rootTransform ? rootTransform->multiply(*sampled.answered) : HostRef<HostTransform>();
}

animation::NodeXformTrack& trackOf(SampledComponent& sampled, animation::AnimationTracks& animation) {
    if (sampled.track < 0) {
        const auto [entry, isNew] = animation.trackByNode.try_emplace(sampled.node, animation.xforms.size());
        if (isNew) {
            animation.xforms.push_back({.node = sampled.node, .interpolation = Interpolation::step});
        }
        sampled.track = static_cast<std::int32_t>(entry->second);
    }
    return animation.xforms[static_cast<std::size_t>(sampled.track)];
}

/// Steps the study's clock through all its frames.
void captureFrames(HostMotionStudy& study, double duration, double step, const MotionScene& motion,
                   const HostRef<HostComponent>& root, animation::AnimationTracks& animation) {
    Progress& progress = motion.document.progress;
    progressAddTotal(progress, static_cast<std::int32_t>(duration / step));
    std::vector<SampledComponent> components;
    listComponents(root, -1, motion.nodeNames, components);
    std::int32_t frame = 0;
    const auto capture = [&](double time) {
        study.seekStudyTime(time);
        captureFrame(frame++, time, components, motion.rootTransform, animation);
    };
    for (double time = 0; time < duration; time += step) {
        capture(time);
        progressAddDone(progress, 1);
    }
    capture(duration);
}

/// Plays a study from 0 to its end into `animation`; answers whether it did. The study is left again, but for
/// one without a duration, and its clock and the host's model stand as before.
bool captureStudy(HostMotionStudy& study, const MotionScene& motion, const HostRef<HostComponent>& root,
                  animation::AnimationTracks& animation) {
    double initialTime = 0;
    bool hasMoved = false;
    PutBack leave([&] {
        if (hasMoved) {
            study.seekStudyTime(initialTime);
        }
        study.leaveStudy();
    });
    study.enterStudy();
    const double duration = study.readStudyDuration();
    if (!(duration > 0)) {
        leave.dismiss();
        return false;
    }
    initialTime = study.readStudyTime();
    const double step = frameStep(study);
    if (!hasFewFrames(duration, step)) {
        motion.buffers.report.warn(
            "the motion study " + animation.name.substr(0, 40) +
            " is left out: its duration and frame rate ask for more than 10 million frames");
        return false;
    }
    motion.buffers.folder.settle();
    hasMoved = true;
    captureFrames(study, duration, step, motion, root, animation);
    return true;
}

} // namespace

HostRef<HostMotionStudyManager> studyManager(HostModelDoc& modelDoc) {
    const HostRef<HostDocExtension> extension = modelDoc.extension();
    return extension ? inRole<HostMotionStudyManager>(extension->studyManagerObject())
                     : HostRef<HostMotionStudyManager>();
}

void sampleStudies(const MotionScene& motion) {
    const HostRef<HostMotionStudyManager> manager = studyManager(motion.modelDoc);
    if (!manager || manager->countStudies() == 0) {
        return;
    }
    for (const std::u16string& name : manager->listStudyNames()) {
        if (const HostRef<HostMotionStudy> study = manager->findStudyByName(name)) {
            sampleStudy(*study, name, motion);
        }
    }
}

void sampleStudy(HostMotionStudy& study, const std::u16string& name, const MotionScene& motion) {
    const HostRef<HostComponent> root = motion.configuration.getRootComponent();
    if (!root || motion.buffers.report.hasFailed()) {
        return;
    }
    animation::AnimationTracks animation;
    animation.name = toAsciiName(name);
    if (!captureStudy(study, motion, root, animation)) {
        return;
    }
    buildKeys(animation, motion, false);
    animation.xforms.clear(); // the greater part of the memory
    if (!writeChannels(animation, motion.document, motion.buffers)) {
        return;
    }
    GltfAnimation& record = addRecord(motion.document.animations);
    record.name = std::move(animation.name);
    for (const animation::KeyedChannel& channel : animation.channels) {
        record.channels.push_back(channel.record);
    }
    motion.scene.animations.push_back(record.index);
}

void listComponents(const HostRef<HostComponent>& component, std::int32_t parentNode,
                    const NodeNames& nodeNames, std::vector<SampledComponent>& list) {
    if (!component) {
        return;
    }
    const bool isRoot = component->isRootComponent() != 0;
    const std::int32_t node = nodeNames.findNodeForComponent(*component);
    if (!isRoot && node >= 0) {
        list.push_back({.component = component, .node = node, .isBelowNode = parentNode >= 0});
    }
    if (component->getChildrenCount() > 0) {
        for (const HostRef<HostComponent>& child : component->getChildren()) {
            listComponents(child, node, nodeNames, list);
        }
    }
}

void captureFrame(std::int32_t frame, double time, std::vector<SampledComponent>& components,
                  const HostRef<HostTransform>& rootTransform, animation::AnimationTracks& animation) {
    for (SampledComponent& sampled : components) {
        HostRef<HostTransform> answered = sampled.component->getPlacement(kTrue);
        if (!answered) {
            answered = sampled.component->getPlacementFallback();
        }
        if (!answered || answered.get() != sampled.answered.get()) {
            sampled.answered = std::move(answered);
            sampled.global = placementNow(sampled, rootTransform);
        }
        if (sampled.global) {
            trackOf(sampled, animation)
                .keys.push_back({.global = sampled.global, .time = time, .frame = frame});
        }
    }
}

} // namespace orvane
