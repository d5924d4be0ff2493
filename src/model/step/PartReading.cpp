#include "model/step/PartReading.h"

#include "model/records/ModelDefaults.h"
#include "model/step/ShapeMesher.h"
#include "model/step/StepColors.h"
#include "model/step/StepText.h"

#include <TopExp_Explorer.hxx>

#include <chrono>

namespace orvane::step {

namespace {

void nameBodies(const PartShape& shape, const PartMesh& mesh, std::vector<BodyRecord>& bodies) {
    std::vector<std::u16string> wanted;
    SiblingNames names;
    for (std::size_t i = 0; i < bodies.size(); ++i) {
        const std::u16string* name = shape.names.Seek(mesh.sources[i].shape.Located(TopLoc_Location()));
        wanted.push_back(name == nullptr ? defaultBodyName(i) : *name);
        names.reserve(wanted.back());
    }
    for (std::size_t i = 0; i < bodies.size(); ++i) {
        bodies[i].name = names.take(wanted[i]);
    }
}

bool holdsCurves(const TopoDS_Shape& shape) {
    return TopExp_Explorer(shape, TopAbs_EDGE).More();
}

} // namespace

StepPart readPart(const ParsedStepFile& parsed, const PartJob& job, const MeshingOptions& options,
                  bool inParallel, PartTimes& times) {
    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    StepPart part;
    const PartShape transferred = transferPart(parsed, job);
    const auto meshBegin = Clock::now();
    times.transferring = std::chrono::duration<double>(meshBegin - begin).count();
    part.warnings = transferred.losses;
    part.hasShape = !transferred.product.IsNull();
    if (!part.hasShape) {
        return part;
    }
    const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(transferred.product);
    PartMesh mesh = meshShape(shape, options, inParallel, part.warnings);
    part.bodies = std::move(mesh.bodies);
    nameBodies(transferred, mesh, part.bodies);
    addPartLook(transferred, mesh, part);
    if (part.bodies.empty() && holdsCurves(shape)) {
        part.warnings.emplace_back("it holds curves alone, which are not shown");
    }
    times.meshing = std::chrono::duration<double>(Clock::now() - meshBegin).count();
    return part;
}

} // namespace orvane::step
