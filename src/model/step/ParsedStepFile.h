#pragma once

#include "model/step/ExternalReferences.h"
#include "model/step/StepStyles.h"

#include <STEPCAFControl_Reader.hxx>

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace orvane::step {

/// A STEP file that was read into the kernel's entities, checked, and rid of what the kernel would make wrong
/// of it.
struct ParsedStepFile {
    std::filesystem::path file; ///< absolute
    STEPCAFControl_Reader reader;
    std::vector<ExternalReference> references;
    StepStyles styles;
    std::string unreadTessellation; ///< see `findUnreadTessellation`
    std::vector<std::string> warnings;
};

/// Parses `file`. `bytes` counts those that the parser has read. Throws `ModelError` for a file that is none
/// or whose damage the kernel would not bear.
void parseStepFile(const std::filesystem::path& file, std::atomic<std::uint64_t>& bytes,
                   ParsedStepFile& parsed);

} // namespace orvane::step
