#pragma once

namespace orvane::cli {

/// The whole command, from its arguments to the exit status: 0 written and complete, 1 refused or failed, 2
/// wrong usage. Throws nothing.
int runCommand(int argc, char** argv);

} // namespace orvane::cli
