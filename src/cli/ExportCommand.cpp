#include "cli/ExportCommand.h"

#include "cli/CreatedFolders.h"
#include "cli/HostFolder.h"
#include "cli/OneLine.h"
#include "cli/ProgressDisplay.h"
#include "cli/Timings.h"
#include "embedded/EmbeddedHost.h"
#include "export/OrvaneExporter.h"
#include "model/ModelReader.h"
#include "model/records/HostPath.h"
#include "platform/AsciiCase.h"
#include "platform/Files.h"
#include "platform/NarrowText.h"
#include "platform/OwnMemory.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <new>
#include <string_view>

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

void warn(std::string_view warning) {
    printOnOneLine(std::cerr, "orvane: warning: ", warning);
}

void printWarnings(const ExportArguments& arguments, const std::vector<std::string>& readingWarnings,
                   const ExportReport& report) {
    if (arguments.options.generateThumbnails != 0) {
        warn("--thumbnails has no effect in this version");
    }
    if (!arguments.hostFolder.empty() && !fs::is_directory(arguments.hostFolder)) {
        warn("the host folder " + arguments.hostFolder + " is not there");
    }
    std::ranges::for_each(readingWarnings, warn);
    std::ranges::for_each(report.warnings, warn);
}

bool wantsTimings(const ExportArguments& arguments) {
    return arguments.timings && !arguments.quiet;
}

bool refuse(std::string_view reason) {
    printOnOneLine(std::cerr, "orvane: ", reason);
    return false;
}

/// The path as a person would write it.
std::string shownPath(const ExportTarget& target) {
    return fs::path(nativePath(target.file())).lexically_normal().string();
}

bool mayWrite(const ExportTarget& target, bool force) {
    const std::string file = shownPath(target);
    std::error_code ignored;
    const fs::file_status status = fs::symlink_status(file, ignored);
    if (fs::is_directory(status)) {
        return refuse(file + " is a folder; choose another name with -o");
    }
    if (fs::exists(status) && !fs::is_regular_file(status) && !fs::is_symlink(status)) {
        return refuse(file + " is no file; choose another name with -o");
    }
    if (fs::exists(status) && !force) {
        return refuse(file + " exists already; replace it with --force, or choose another name with -o");
    }
    return true;
}

Model readShowingProgress(const ExportArguments& arguments, ProgressDisplay& display, Timings& timings) {
    ReadingOptions options = arguments.reading;
    options.followsMemory = wantsTimings(arguments);
    options.costs = &timings.reading;
    if (display.isShown()) {
        options.onProgress = [&](const ReadingProgress& progress) { display.showReading(progress); };
    }
    display.showStart(arguments.model);
    Model model = readModel(arguments.model, options);
    display.clear();
    return model;
}

void exportShowingProgress(COrvaneExporter& exporter, ProgressDisplay& display, Timings& timings) {
    const Stopwatch watch;
    std::optional<double> built;
    exporter.progress().onChange = [&](const Progress& progress) {
        if (progress.phase == Progress::Phase::writing && !built) {
            built = watch.seconds();
        }
        display.showExport(progress);
    };
    exporter.exportActiveDocument();
    exporter.progress().onChange = nullptr;
    display.clear();
    const double all = watch.seconds();
    timings.building = built.value_or(all);
    timings.writing = all - timings.building;
}

/// Prints what there is to tell of an export. What has become of it does not depend on that any more.
void printOutcome(const ExportArguments& arguments, const std::vector<std::string>& readingWarnings,
                  const ExportReport& report, Timings timings, const std::string& file) {
    try {
        if (!arguments.quiet) {
            printWarnings(arguments, readingWarnings, report);
        }
        if (wantsTimings(arguments) && !report.hasFailed()) {
            timings.peakMemory = std::max(timings.reading.peakMemory, ownPeakMemory());
            printTimings(std::cerr, timings);
        }
    } catch (const std::bad_alloc&) {
        warn("there is not enough memory to tell all warnings");
    }
    if (report.hasFailed()) {
        refuse(report.firstError());
    } else if (!arguments.quiet && !(std::cout << file << std::endl)) {
        warn("the path of the result cannot be written to standard output");
    }
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
    const Stopwatch watch;
    Timings timings;
    ExportRequest request{.mayReplace = arguments.force};
    if (!arguments.output.empty()) {
        request.exportPath = requestPath(arguments.output);
        // Asked here too, so that nobody waits for a large model in vain.
        if (!mayWrite(resolveTarget(request, arguments.options, {}), arguments.force)) {
            return 1;
        }
    }
    ProgressDisplay display(!arguments.quiet);
    Model model = readShowingProgress(arguments, display, timings);
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
    const std::string shown = shownPath(target);
    exportShowingProgress(exporter, display, timings);
    timings.total = watch.seconds();

    const ExportReport& report = exporter.report();
    printOutcome(arguments, readingWarnings, report, timings, shown);
    return report.hasFailed() ? 1 : 0;
}

} // namespace orvane::cli
