#include "animation/ExplodedViews.h"

#include "animation/StudySampling.h"

namespace orvane {

namespace {

constexpr double kExplodeSeconds = 4.0;

} // namespace

void sampleExplodedViews(HostAssembly& assembly, const MotionScene& motion) {
    if (assembly.countExplodedViews() <= 0) {
        return;
    }
    const HostRef<HostMotionStudyManager> manager = studyManager(motion.modelDoc);
    if (!manager) {
        return;
    }
    for (const std::u16string& name : assembly.listExplodedViewNames()) {
        if (motion.configuration.countExplodeSteps() <= 0) {
            continue;
        }
        if (const HostRef<HostMotionStudy> motionStudy = manager->createStudy()) {
            motionStudy->generateExplodeMotion(true, kExplodeSeconds, 0.0);
            motionStudy->nameStudy(name);
            motionStudy->computeStudy();
            sampleStudy(*motionStudy, name, motion);
            manager->deleteStudyByName(name);
        }
    }
}

} // namespace orvane
