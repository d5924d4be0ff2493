#include "export/OrvaneExporter.h"

#include "document/AsciiNames.h"
#include "document/DiskBufferFolder.h"
#include "document/WorkingBufferFolder.h"
#include "export/SceneFiles.h"
#include "export/TargetFolder.h"
#include "platform/Files.h"
#include "platform/NarrowText.h"

#include <charconv>
#include <exception>
#include <new>
#include <utility>

namespace orvane {

namespace {

constexpr std::int32_t kTrackingId = 777;
/// The name of a file whose document has a title that the system takes for no file name.
constexpr const char* kNameWithoutTitle = "scene";

/// The whole number at the start of a text; 0 where none stands there.
std::int32_t leadingNumber(const std::u16string& text) {
    const std::string narrow = toSystemNarrow(text);
    std::int32_t number = 0;
    std::from_chars(narrow.data(), narrow.data() + narrow.size(), number);
    return number;
}

} // namespace

COrvaneExporter::COrvaneExporter(const ExporterSurroundings& surroundings)
    : hostRevision(leadingNumber(surroundings.host.revisionText())), surroundings_(surroundings) {
    if (surroundings_.settings) {
        loadOptions(options_, *surroundings_.settings);
    }
}

void COrvaneExporter::setOption(ExportSwitch option, std::int16_t value) {
    options_.*option = value;
    if (surroundings_.settings) {
        storeOption(options_, option, *surroundings_.settings);
    }
}

void COrvaneExporter::onSaveAs(const std::u16string& path, const std::string& first,
                               const std::string& second) {
    try {
        const std::string narrow = toSystemNarrow(path);
        std::string cut = cutAfterExtension(narrow, first);
        if (cut.empty()) {
            cut = cutAfterExtension(narrow, second);
        }
        if (!cut.empty()) {
            setRequest({.saveAsPath = std::move(cut)});
        }
    } catch (const std::bad_alloc&) {
        report_ = {};
        report_.fail(ExportReport::kOutOfMemory);
        return;
    }
    exportActiveDocument();
}

std::string COrvaneExporter::languageText(std::int32_t number) const {
    return surroundings_.texts ? surroundings_.texts->text(number) : std::string();
}

std::u16string COrvaneExporter::defaultDocumentTitle() {
    std::u16string title;
    if (const HostRef<HostModelDoc> modelDoc = surroundings_.host.activeDocument()) {
        title = modelDoc->documentTitle();
    }
    return title.empty() ? fromSystemNarrow(languageText(kUntitledText)) : title;
}

ExportTarget COrvaneExporter::plannedTarget() {
    return resolveTarget(request_, options_,
                         titleFault() ? kNameWithoutTitle : toAsciiName(defaultDocumentTitle()));
}

/// Why the system takes no file of the title's name; nothing when it does, or when the request has a path.
std::optional<std::string> COrvaneExporter::titleFault() {
    if (!request_.saveAsPath.empty() || !request_.exportPath.empty()) {
        return std::nullopt;
    }
    const ExportTarget target = resolveTarget(request_, options_, toAsciiName(defaultDocumentTitle()));
    return fileNameFault(target.fullFileName());
}

bool COrvaneExporter::mayReplace(const ExportTarget& target) {
    if (!request_.mayReplace) {
        return !nameIsTaken(target.file());
    }
    if (target.fileExtension != "gltf" || request_.saveAsPath.empty()) {
        return true;
    }
    // The host's own dialog has asked about a file in the chosen folder itself; the one that is written lies
    // below it.
    const std::string file = target.fileName + "." + target.fileExtension;
    if (nameIsTaken(target.destinationFolderPre + file) || !nameIsTaken(target.destinationFolder + file)) {
        return true;
    }
    return surroundings_.prompts &&
           surroundings_.prompts->confirm(file + " already exists.\nDo you want to replace it?",
                                          "Confirm Save As");
}

void COrvaneExporter::exportActiveDocument() {
    report_ = {};
    if (hostRevision != kSupportedHostRevision) {
        refuseHost();
        return;
    }
    try {
        if (runRequest() == Progression::ended) {
            finish();
        }
    } catch (const std::bad_alloc&) {
        finish(); // gives back the memory that the message needs
        report_.fail(ExportReport::kOutOfMemory);
    } catch (const std::exception& fault) {
        finish();
        report_.fail(fault.what());
    } catch (...) {
        finish();
        report_.fail("the host failed without saying why");
    }
}

void COrvaneExporter::refuseHost() noexcept {
    report_.fail("this revision of the host is not supported");
    try {
        if (surroundings_.prompts) {
            surroundings_.prompts->showMessage(languageText(kWrongHostText), "Orvane Exporter");
        }
    } catch (...) {
        // The report tells it all the same.
    }
}

COrvaneExporter::Progression COrvaneExporter::runRequest() {
    if (surroundings_.cursor) {
        surroundings_.cursor->show();
    }
    progressBegin(document_.progress);
    const HostRef<HostModelDoc> modelDoc = surroundings_.host.activeDocument();
    if (!modelDoc) {
        report_.fail("there is no open document");
        return Progression::notBegun;
    }
    trackingId_ = kTrackingId;
    surroundings_.host.registerTrackingId(u"OrvaneExporter", trackingId_);
    const ExportTarget target = plannedTarget();
    if (!mayReplace(target)) {
        report_.fail(nativePath(target.file()) + " already exists");
        return Progression::notBegun;
    }
    exportDocument(modelDoc, target);
    return Progression::ended;
}

void COrvaneExporter::exportDocument(const HostRef<HostModelDoc>& modelDoc, const ExportTarget& target) {
    if (const auto fault = titleFault()) {
        report_.warnings.push_back("the title is no file name, since it " + *fault +
                                   "; the result is named " + kNameWithoutTitle);
    } else if (const auto nameFault = fileNameFault(target.fullFileName())) {
        report_.fail("the file name " + target.fileName.substr(0, 40) + "... " + *nameFault +
                     "; choose a shorter one");
        return;
    }
    const exporter::TargetFolder folder(target.destinationFolder, !target.isBinary(), report_);
    if (report_.hasFailed()) {
        return;
    }
    StagedFolder staged(target.destinationFolder, folder.isNew());
    const exporter::SceneFile scene{target.fullFileName(),
                                    request_.mayReplace ? Existing::givesWay : Existing::stays};
    std::string written = nativePath(target.file());
    if (target.isBinary()) {
        exportBinary(modelDoc, scene, staged);
    } else {
        exportText(modelDoc, scene, staged);
    }
    if (!report_.hasFailed()) {
        report_.writtenFile = std::move(written);
        warnOfLeftBehind(staged);
    }
}

/// There is a result already: where there is no memory left for such a warning, it is left out.
void COrvaneExporter::warnOfLeftBehind(const StagedFolder& staged) noexcept {
    try {
        for (const std::string& path : staged.leftBehind()) {
            report_.warn(path + " could not be taken away");
        }
    } catch (const std::bad_alloc&) {
        return;
    }
}

void COrvaneExporter::exportText(const HostRef<HostModelDoc>& modelDoc, const exporter::SceneFile& scene,
                                 StagedFolder& staged) {
    DiskBufferFolder folder(staged, report_);
    const std::int32_t activeScene =
        exporter::buildDocument(documentSource(modelDoc), folder, document_, report_);
    if (!report_.hasFailed()) {
        progressBeginWriting(document_.progress);
        exporter::writeTextScene(document_, activeScene, scene, staged, report_);
    }
}

void COrvaneExporter::exportBinary(const HostRef<HostModelDoc>& modelDoc, const exporter::SceneFile& scene,
                                   StagedFolder& staged) {
    WorkingBufferFolder folder(staged.path(), report_);
    const std::int32_t activeScene =
        exporter::buildDocument(documentSource(modelDoc), folder, document_, report_);
    if (!report_.hasFailed()) {
        progressBeginWriting(document_.progress);
        exporter::writeBinaryScene(document_, activeScene, scene, folder, staged, report_);
    }
}

exporter::DocumentSource COrvaneExporter::documentSource(const HostRef<HostModelDoc>& modelDoc) {
    return {.host = surroundings_.host,
            .modelDoc = modelDoc,
            .options = options_,
            .title = defaultDocumentTitle()};
}

/// Empties everything that lives for one export. Takes no memory.
void COrvaneExporter::finish() noexcept {
    Progress progress = std::move(document_.progress);
    document_ = GltfDocument{};
    document_.progress = std::move(progress);
    request_ = {};
    progressEnd(document_.progress);
    if (surroundings_.cursor) {
        surroundings_.cursor->restore();
    }
}

} // namespace orvane
