#include "cli/Command.h"

#include "cli/ExportCommand.h"
#include "cli/OneLine.h"
#include "cli/OptionTexts.h"
#include "model/records/ModelError.h"
#include "platform/CommandProcess.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <functional>
#include <iostream>
#include <new>
#include <optional>
#include <string>
#include <string_view>

namespace orvane::cli {

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

/// An option whose value is not all that CLI11 takes for one of its type.
struct ValueOption {
    const char* flag;
    const char* type;   ///< the value, as help and messages name it
    const char* wanted; ///< what it has to be
    const char* help;
};

/// `parse` gives nothing for a text that is wrong usage.
template <class Value>
void addValueOption(CLI::App& command, const ValueOption& option,
                    std::optional<Value> (*parse)(std::string_view), std::function<void(Value)> take) {
    command
        .add_option_function<std::string>(
            option.flag,
            [option, parse, take](const std::string& text) {
                const std::optional<Value> value = parse(text);
                if (!value) {
                    throw CLI::ValidationError(option.flag, std::string(option.type) + " has to be " +
                                                                option.wanted + ", found '" + text + "'");
                }
                take(*value);
            },
            option.help)
        ->type_name(option.type);
}

void addReadingOptions(CLI::App& command, ReadingOptions& reading) {
    static_assert(kMostJobs == 1024, "as the option tells");
    addValueOption<unsigned>(
        command,
        {.flag = "--jobs",
         .type = "N",
         .wanted = "a whole number from 1 to 1024",
         .help = "Processes that work on the parts of a STEP file at once (as many as there are cores)"},
        jobsFromText, [&reading](unsigned jobs) { reading.jobs = jobs; });
    addValueOption<Deflection>(
        command,
        {.flag = "--deflection",
         .type = "SIZE",
         .wanted = "a length above 0 (0.1mm, 0.0001m, or 0.0001 for metres) or a share of the part's box "
                   "up to 100% (0.1%)",
         .help = "Greatest distance between a STEP face and its triangles: a length (0.1mm, 0.0001m, or "
                 "0.0001 for metres) or a share of the diagonal of the part's box (0.1%)"},
        deflectionFromText, [&reading](const Deflection& deflection) {
            reading.meshing.deflection = deflection;
            reading.meshing.isChosen = true;
        });
    addValueOption<double>(command,
                           {.flag = "--angle",
                            .type = "DEGREES",
                            .wanted = "a number above 0 and at most 180",
                            .help = "Greatest angle between neighbouring pieces of a curved STEP face (20)"},
                           angleFromText, [&reading](double degrees) {
                               reading.meshing.angle = degrees;
                               reading.meshing.isChosen = true;
                           });
}

void addExportOptions(CLI::App& command, ExportArguments& arguments) {
    command
        .add_option("MODEL", arguments.model, "Model document (.tfgprt, .tfgasm) or STEP file (.step, .stp)")
        ->required();
    command
        .add_option("-o,--output", arguments.output,
                    "Result, ending in .glb or .gltf; OUT.gltf lands in a folder of its own, OUT/OUT.gltf "
                    "(TITLE.glb in the current folder when absent)")
        ->type_name("OUT")
        ->check([](const std::string& output) {
            const auto fault = outputFault(output);
            return fault ? "OUT " + *fault + ", found '" + output + "'" : std::string();
        });
    for (const OptionRow& row : kExportOptions) {
        command.add_flag_callback(
            row.flag, [&row, &options = arguments.options] { options.*row.option = row.flagValue; },
            row.help);
    }
    command.add_option("--host-folder", arguments.hostFolder, "Folder of the host's appearance library")
        ->type_name("DIR");
    addReadingOptions(command, arguments.reading);
    command.add_flag("--force", arguments.force, "Replace a result that is there already");
    command.add_flag("--timings", arguments.timings,
                     "Print what the export took, in seconds (transferring and meshing: of all processes "
                     "together), and the peak of memory");
    command.add_flag("--quiet", arguments.quiet, "Print nothing but errors, and no timings");
}

/// Help and version are printed as they are; anything else is wrong usage, told in one line.
int answerParseError(const CLI::App& app, const CLI::ParseError& error) {
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
        return app.exit(error);
    }
    printOnOneLine(std::cerr, "orvane: ", std::string(error.what()) + " (see orvane --help)");
    return kWrongUsage;
}

int run(int argc, char** argv) {
    CLI::App app("Turns CAD models into glTF 2.0 scenes", "orvane");
    app.set_version_flag("--version", "orvane " ORVANE_VERSION);
    app.require_subcommand(0, 1);
    ExportArguments exportArguments;
    CLI::App* exportCommand = app.add_subcommand("export", "Export a model as .gltf or .glb");
    addExportOptions(*exportCommand, exportArguments);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return answerParseError(app, error);
    }
    if (app.get_subcommands().empty()) {
        std::cerr << "orvane: a command is missing: orvane export MODEL (see orvane --help)\n";
        return kWrongUsage;
    }
    return runExport(exportArguments);
}

} // namespace

int runCommand(int argc, char** argv) {
    settleCommandProcess();
    try {
        return run(argc, argv);
    } catch (const std::bad_alloc&) {
        std::cerr << "orvane: there is not enough memory for this model\n";
    } catch (const ModelError& error) {
        printOnOneLine(std::cerr, "orvane: ", error.what());
    } catch (const std::exception& error) {
        printOnOneLine(std::cerr, "orvane: ", error.what());
    }
    return kFailed;
}

} // namespace orvane::cli
