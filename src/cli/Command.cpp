#include "cli/Command.h"

#include "cli/ExportCommand.h"
#include "cli/OneLine.h"
#include "model/records/ModelError.h"
#include "platform/CommandProcess.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>
#include <new>

namespace orvane::cli {

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

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
    command
        .add_option_function<double>(
            "--deflection",
            [&arguments](double metres) { arguments.reading.meshing.deflection = Metres{metres}; },
            "Greatest distance between a STEP face and its triangles")
        ->type_name("METRES")
        ->check([](const std::string& text) {
            double metres = 0;
            const bool isGood = CLI::detail::lexical_cast(text, metres) && metres > 0 && metres < 1e300;
            return isGood ? std::string() : "METRES has to be a number above 0, found '" + text + "'";
        });
    command.add_flag("--force", arguments.force, "Replace a result that is there already");
    command.add_flag("--quiet", arguments.quiet, "Print nothing but errors");
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
