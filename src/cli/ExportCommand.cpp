#include "cli/ExportCommand.h"

#include "cli/CreatedFolders.h"
#include "cli/HostFolder.h"
#include "cli/OneLine.h"
#include "cli/ProgressDisplay.h"
#include "embedded/EmbeddedHost.h"
#include "export/OrvaneExporter.h"
#include "model/ModelReader.h"
#include "model/records/HostPath.h"
#include "platform/AsciiCase.h"
#include "platform/Files.h"
#include "platform/NarrowText.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace orvane::cli {

namespace {

namespace fs = std::filesystem;

std::string lowerExtension(const fs::path& path) {
    return asciiLower(path.extension().string());
}

/// The path that the exporter takes: with a folder, and with the extension in lower case.
std::string requestPath(const std::string& output) {
    const fs::path path(output);
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    return (folder / path.stem()).string() + lowerExtension(path);
}

void warn(const std::string& warning) {
    std::cerr << "orvane: warning: " << onOneLine(warning) << "\n";
}

void printWarnings(const ExportArguments& arguments, const std::vector<std::string>& readingWarnings,
                   const ExportReport& report) {
    if (arguments.options.generateThumbnails != 0) {
        warn("--thumbnails has no effect in this version");
    }
    if (!arguments.hostFolder.empty() && !fs::is_directory(arguments.hostFolder)) {
        std::cerr << "orvane: warning: the host folder " << arguments.hostFolder << " is not there\n";
    }
    std::ranges::for_each(readingWarnings, warn);
    std::ranges::for_each(report.warnings, warn);
}

bool refuse(const std::string& reason) {
    std::cerr << "orvane: " << onOneLine(reason) << "\n";
    return false;
}

bool mayWrite(const ExportTarget& target, bool force) {
    const std::string file = fs::path(nativePath(target.file())).lexically_normal().string();
    std::error_code ignored;
    const fs::file_status status = fs::symlink_status(file, ignored);
    if (fs::is_directory(status)) {
        return refuse(file + " is a folder; choose another name with -o");
    }
    if (fs::exists(status) && !force) {
        return refuse(file + " exists already; replace it with --force, or choose another name with -o");
    }
    return true;
}

/// Whether an export has its result; prints what there is to tell of it.
bool isComplete(const ExportArguments& arguments, const std::vector<std::string>& readingWarnings,
                const ExportReport& report) {
    if (!arguments.quiet) {
        printWarnings(arguments, readingWarnings, report);
    }
    if (report.hasFailed()) {
        return refuse(std::string(report.firstError()));
    }
    if (!arguments.quiet) {
        std::cout << fs::path(report.writtenFile).lexically_normal().string() << std::endl;
    }
    return true;
}

} // namespace

std::optional<std::string> outputFault(const std::string& output) {
    const fs::path path(nativePath(output));
    const std::string extension = lowerExtension(path);
    if (extension == ".glb" || extension == ".gltf") {
        return std::nullopt;
    }
    return "has to end in a file name with .glb or .gltf";
}

int runExport(const ExportArguments& arguments) {
    ExportRequest request;
    if (!arguments.output.empty()) {
        request.exportPath = requestPath(arguments.output);
        // Asked here too, so that nobody waits for a large model in vain.
        if (!mayWrite(resolveTarget(request, arguments.options, {}), arguments.force)) {
            return 1;
        }
    }
    ProgressDisplay display(!arguments.quiet);
    display.showPhase("reading " + arguments.model);
    Model model = readModel(arguments.model, {arguments.deflection});
    display.clear();
    const std::vector<std::string> readingWarnings = std::move(model.warnings);

    const HostRef<HostApplication> host =
        openEmbeddedHost(std::move(model), toHostPath(hostFolder(arguments.hostFolder)));
    COrvaneExporter exporter({.host = *host});
    exporter.setRequest(std::move(request));
    exporter.setOptions(arguments.options);
    const ExportTarget target = exporter.plannedTarget();
    if (!mayWrite(target, arguments.force)) {
        return 1;
    }
    CreatedFolders folders;
    if (const auto fault = folders.create(nativePath(target.destinationFolderPre))) {
        refuse(*fault);
        return 1;
    }
    display.listenTo(exporter.progress());
    exporter.exportActiveDocument();
    display.clear();

    if (!isComplete(arguments, readingWarnings, exporter.report())) {
        return 1;
    }
    folders.keep();
    return 0;
}

} // namespace orvane::cli
