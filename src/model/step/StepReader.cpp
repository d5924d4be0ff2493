#include "model/step/StepReader.h"

#include "model/records/InstanceTree.h"
#include "model/records/ModelError.h"
#include "model/step/ProductTree.h"
#include "model/step/StepProcesses.h"
#include "model/step/StlFile.h"
#include "platform/AsciiCase.h"

namespace orvane::step {

namespace {

bool isStl(const std::filesystem::path& file) {
    return asciiLower(file.extension().string()) == ".stl";
}

} // namespace

const ModelDocument* readStepFile(const std::filesystem::path& file, const ReadingOptions& options,
                                  Model& model) {
    const ModelDocument* document = ProductTree(options, model).readFile(file);
    if (TreeSizes().of(*document).components > kMostComponents) {
        throw ModelError(file.string() + ": found more than " + std::to_string(kMostComponents) +
                         " components in the whole tree, expected at most as many");
    }
    return document;
}

std::vector<FaceRecord> readShapeFile(const std::filesystem::path& file, const ReadingOptions& options,
                                      std::vector<std::string>& warnings) {
    if (isStl(file)) {
        return {readStlFile(file)};
    }
    std::vector<FaceRecord> faces =
        readStepShape(std::filesystem::absolute(file).lexically_normal(), options, warnings);
    if (faces.empty()) {
        throw ModelError(file.string() + ": found no face, expected at least one solid, shell or face");
    }
    return faces;
}

} // namespace orvane::step
