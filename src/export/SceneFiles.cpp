#include "export/SceneFiles.h"

#include "document/DocumentWriter.h"
#include "document/GlbMerge.h"
#include "document/GlbWriter.h"
#include "document/StrictJson.h"
#include "export/ScenePictures.h"
#include "platform/Files.h"
#include "platform/OutputFile.h"

#include <limits>
#include <utility>

namespace orvane::exporter {

namespace {

constexpr std::int64_t kLargestBinary = std::numeric_limits<std::uint32_t>::max();

/// A picture that could not be embedded stays outside, under its name alone.
void copyNoPicture(const std::string&, std::string&, bool) {}

void writeWholeText(GltfDocument& document, std::int32_t activeScene, TextStream::Drain drain) {
    TextStream gltf;
    gltf.drainTo(std::move(drain));
    writeDocumentHead(gltf, activeScene);
    writeDocument(gltf, document, document.progress);
    gltf << "}\n";
    gltf.drainAll();
}

/// Called when the names of pictures are settled and those of embedded ones are out of the text, and before
/// the target stands in its place, so that memory that the warnings lack leaves none behind.
void warnOfStrictReaders(const GltfDocument& document, ExportReport& report) {
    for (const std::string& reason : reasonsOfStrictReaders(document)) {
        report.warn(reason);
    }
}

/// The last step of an export: behind it there is a result.
void putInPlace(OutputFile file, const SceneFile& scene, StagedFolder& staged, ExportReport& report) {
    if (const auto fault = staged.placeAll(scene.name, std::move(file), scene.existing)) {
        report.fail(*fault);
    }
}

} // namespace

void writeTextScene(GltfDocument& document, std::int32_t activeScene, const SceneFile& scene,
                    StagedFolder& staged, ExportReport& report) {
    settleLoosePictures(document, stagePictures(staged, report));
    if (report.hasFailed()) {
        return;
    }
    warnOfStrictReaders(document, report);
    OutputFile file = OutputFile::create(staged.path());
    writeWholeText(document, activeScene, [&](std::string_view text) { file.write(text); });
    putInPlace(std::move(file), scene, staged, report);
}

void writeBinaryScene(GltfDocument& document, std::int32_t activeScene, const SceneFile& scene,
                      WorkingBufferFolder& folder, StagedFolder& staged, ExportReport& report) {
    const std::vector<FileRange> ranges = mergeBuffers(document, folder, makePictures(staged.path(), report));
    if (report.hasFailed()) {
        return;
    }
    settleLoosePictures(document, copyNoPicture);
    warnOfStrictReaders(document, report);
    OutputFile file = OutputFile::create(staged.path());
    GlbWriter glb(file);
    glb.writeHeader();
    glb.beginJsonChunk();
    writeWholeText(document, activeScene, [&](std::string_view text) { glb.writeJson(text); });
    glb.endJsonChunk();
    std::int64_t total = file.position();
    for (const FileRange& range : ranges) {
        total += range.length;
    }
    if (total > kLargestBinary) {
        report.fail(nativePath(staged.path() + scene.name) +
                    " would be larger than 4 GiB, the most that a .glb can hold; export a .gltf instead");
        return;
    }
    glb.beginBinChunk();
    for (const FileRange& range : ranges) {
        folder.copyTo(file, range);
    }
    glb.endBinChunk();
    glb.finish();
    putInPlace(std::move(file), scene, staged, report);
}

} // namespace orvane::exporter
