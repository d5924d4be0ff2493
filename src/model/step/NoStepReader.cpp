#include "model/records/ModelError.h"
#include "model/step/StepReader.h"

// Stands in for the STEP reader in a build without Open CASCADE.
namespace orvane::step {

const ModelDocument* readStepFile(const std::filesystem::path& file, const ReadingOptions&, Model&) {
    throw ModelError(file.string() +
                     ": this build of orvane reads no STEP files; build it with Open CASCADE");
}

std::vector<FaceRecord> readShapeFile(const std::filesystem::path& file, const ReadingOptions&,
                                      std::vector<std::string>&) {
    throw ModelError(file.string() +
                     ": this build of orvane reads no STEP or STL files; build it with Open CASCADE");
}

} // namespace orvane::step
