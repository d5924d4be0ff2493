#include "animation/ExplodedViews.h"

#include "animation/StudySampling.h"
#include "host/PutBack.h"

namespace orvane {

namespace {

constexpr double kExplodeSeconds = 4.0;
const std::u16string kNoName; ///< that of a study that was just made

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
            const std::u16string* studyName = &kNoName;
            const PutBack remove([&] { manager->deleteStudyByName(*studyName); });
            motionStudy->generateExplodeMotion(true, kExplodeSeconds, 0.0);
            motionStudy->nameStudy(name);
            studyName = &name;
            motionStudy->computeStudy();
            sampleStudy(*motionStudy, name, motion);
        }
    }
}

} // namespace orvane
