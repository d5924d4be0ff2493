#include "model/step/ReaderProcess.h"

#include "model/records/ModelError.h"
#include "model/step/Kernel.h"
#include "model/step/PartWorkers.h"
#include "model/step/ShapeMesher.h"
#include "model/step/StepDocument.h"
#include "model/step/TreeRecords.h"

#include <XCAFDoc_DocumentTool.hxx>

#include <iterator>
#include <memory>

namespace orvane::step {

namespace {

/// Runs what calls the kernel; what it throws refuses the file.
template <class Work>
void readOrRefuse(const ReaderTask& task, ReaderChannel& channel, Work work) {
    try {
        settleKernel();
        work();
        channel.send(ReaderMessage::Kind::done, 0);
    } catch (const ModelError& error) {
        channel.send(ReaderMessage::Kind::refused, 0, std::string(error.what()));
    } catch (const Standard_Failure& failure) {
        channel.send(ReaderMessage::Kind::refused, 0,
                     task.file.string() + ": found something that Open CASCADE cannot take (" +
                         failureText(failure) + "), expected a readable STEP file");
    }
}

TreeAndJobs readTree(ParsedStepFile& parsed) {
    const StepDocument step = readStructure(parsed);
    TreeAndJobs out = describeTree(step, parsed.reader.Reader().WS()->Graph());
    out.tree.warnings = parsed.warnings;
    return out;
}

} // namespace

void readAsProducts(const ReaderTask& task, ReaderChannel& channel) {
    readOrRefuse(task, channel, [&] {
        ParsedStepFile parsed;
        parseStepFile(task.file, channel.state->bytesParsed, parsed);
        channel.state->isParsed = true;
        const TreeAndJobs work = readTree(parsed);
        channel.send(ReaderMessage::Kind::tree, 0, work.tree);
        runPartWorkers(task, parsed, work.jobs, channel);
    });
}

void readAsOneShape(const ReaderTask& task, ReaderChannel& channel) {
    readOrRefuse(task, channel, [&] {
        ParsedStepFile parsed;
        parseStepFile(task.file, channel.state->bytesParsed, parsed);
        channel.state->isParsed = true;
        Handle(TDocStd_Document) document = new TDocStd_Document("Orvane");
        if (!parsed.reader.Transfer(document)) {
            throw ModelError(task.file.string() +
                             ": found no shape, expected at least one product with a shape");
        }
        TDF_LabelSequence roots;
        XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(roots);
        std::vector<FaceRecord> faces;
        for (const TDF_Label& root : roots) {
            PartMesh mesh =
                meshShape(XCAFDoc_ShapeTool::GetShape(root), task.meshing, task.jobs > 1, parsed.warnings);
            for (BodyRecord& body : mesh.bodies) {
                std::ranges::move(body.faces, std::back_inserter(faces));
            }
        }
        channel.send(ReaderMessage::Kind::faces, 0, faces, parsed.warnings);
    });
}

} // namespace orvane::step
