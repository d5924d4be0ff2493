#pragma once

#include "export/ExportOptions.h"
#include "model/records/ReadingOptions.h"

#include <optional>
#include <string>

namespace orvane::cli {

/// What the command line of `orvane export` says.
struct ExportArguments {
    std::string model;
    std::string
        output; ///< ends in `.gltf` or `.glb`, any case; empty: the model's title in the current folder
    ExportOptions options{.destinationDirectory = u"."}; ///< its switches as the flags set them
    std::string hostFolder;
    ReadingOptions reading;
    bool force = false;
    bool timings = false; ///< print what the export took; not where `quiet` is set
    bool quiet = false;
};

/// What is wrong with `output`, as the end of a sentence; nothing when it names a file to write.
std::optional<std::string> outputFault(const std::string& output);

/// Runs the command: progress, warnings, timings and errors go to standard error, the path of what was
/// written to standard output. Gives the exit status: 0 written and complete, 1 refused or failed. Throws
/// `ModelError`.
int runExport(const ExportArguments& arguments);

} // namespace orvane::cli
