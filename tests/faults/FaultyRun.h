#pragma once

#include "platform/FileCalls.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane {

/// What one call on files of a run is to meet.
struct PlannedFault {
    int call = 0; ///< its number, from 1 on; 0: none
    platform::FileFault fault = platform::FileFault::none;
    bool isForGood = false; ///< also every later call of that kind
    int signal = 0;         ///< sent to the command just before the call
    int refusedMemory = -1; ///< or the number of the request for memory that is refused, from 0 on
};

/// How a run of the command ended.
struct FaultyOutcome {
    int status = -1;         ///< -1 where a signal ended it
    int signal = 0;          ///< that signal
    int calls = 0;           ///< on files, those of its own child processes too
    bool wasRefused = false; ///< whether there were so many requests for memory
    bool leaksFiles = false; ///< open ones, at its end
    std::string output;
    std::string errors;
};

/// Runs the command with these arguments in a process of its own, in which `fault` happens.
FaultyOutcome runFaulty(const std::vector<std::string>& arguments, const PlannedFault& fault);

} // namespace orvane
