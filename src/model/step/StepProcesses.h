#pragma once

#include "model/records/ReadingOptions.h"
#include "model/step/StepRecords.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// Reads one STEP file by processes of its own, since the kernel crashes, runs without end and takes all
/// memory over files that somebody damaged.
namespace orvane::step {

/// One part of a file, or why there is none.
struct PartOutcome {
    std::optional<StepPart> part;
    std::string loss; ///< what follows "Open CASCADE "
};

struct StepFile {
    StepTree tree;
    std::vector<PartOutcome> parts; ///< as many as the tree says
};

/// Reads the products of a file, and not yet the files that it refers to. Throws `ModelError` for a file that
/// cannot be read, also where the kernel does not survive it.
StepFile readStepProducts(const std::filesystem::path& file, const ReadingOptions& options);

/// Reads a file as the faces of one shape; throws likewise.
std::vector<FaceRecord> readStepShape(const std::filesystem::path& file, const ReadingOptions& options,
                                      std::vector<std::string>& warnings);

} // namespace orvane::step
