#include "model/step/StepReader.h"

#include "model/records/InstanceTree.h"
#include "model/records/ModelError.h"
#include "model/step/KernelSession.h"
#include "model/step/ProductTree.h"
#include "model/step/ShapeMesher.h"
#include "model/step/StlFile.h"
#include "platform/AsciiCase.h"

namespace orvane::step {

namespace {

bool isStl(const std::filesystem::path& file) {
    return asciiLower(file.extension().string()) == ".stl";
}

/// Runs what calls the kernel and turns its exceptions into the reader's own.
template <class Function>
auto withKernel(const std::filesystem::path& file, Function function) {
    const KernelSession session;
    try {
        return function();
    } catch (const Standard_Failure& failure) {
        throw ModelError(file.string() + ": found something that Open CASCADE cannot take (" +
                         failureText(failure) + "), expected a readable STEP file");
    }
}

} // namespace

const ModelDocument* readStepFile(const std::filesystem::path& file, const ReadingOptions& options,
                                  Model& model) {
    return withKernel(file, [&] {
        const ModelDocument* document = ProductTree(options.meshing, model).readFile(file);
        if (TreeSizes().of(*document).components > kMostComponents) {
            throw ModelError(file.string() + ": found more than " + std::to_string(kMostComponents) +
                             " components in the whole tree, expected at most as many");
        }
        return document;
    });
}

std::vector<FaceRecord> readShapeFile(const std::filesystem::path& file, const ReadingOptions& options,
                                      std::vector<std::string>& warnings) {
    if (isStl(file)) {
        return {readStlFile(file)};
    }
    return withKernel(file, [&] {
        const StepDocument step =
            loadStepDocument(std::filesystem::absolute(file).lexically_normal(), warnings);
        std::vector<FaceRecord> faces;
        for (const TDF_Label& root : step.roots) {
            PartMesh mesh = meshShape(XCAFDoc_ShapeTool::GetShape(root), options.meshing, file.string(), warnings);
            for (BodyRecord& body : mesh.bodies) {
                std::ranges::move(body.faces, std::back_inserter(faces));
            }
        }
        if (faces.empty()) {
            throw ModelError(file.string() + ": found no face, expected at least one solid, shell or face");
        }
        return faces;
    });
}

} // namespace orvane::step
