#pragma once

#include "embedded/ComponentInstances.h"
#include "embedded/StudyPlayback.h"

namespace orvane::embedded {

/// When an exploded view moves, seconds, and which way.
struct ExplodeTiming {
    bool explode = true; ///< false: from the exploded state back together
    double duration = 0;
    double start = 0;
};

/// Fills a study with the motion of its exploded view, from the placements that the components have now. The
/// steps follow one another, each with an equal share of the time.
void fillWithExplodedView(EmbeddedStudy& study, const ComponentInstances& components,
                          const ExplodeTiming& timing);

} // namespace orvane::embedded
