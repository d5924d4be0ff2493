#pragma once

#include "model/records/ModelRecords.h"
#include "model/records/ReadingOptions.h"

#include <filesystem>
#include <vector>

namespace orvane::step {

/// Reads a STEP file and the STEP files that it refers to, and appends its documents to `model` in
/// depth-first order of first mention, the file's own (an assembly, or the part of a file with a single part)
/// first. Returns that one; it lives as long as the model. Faces that cannot be meshed become warnings of the
/// model. Throws `ModelError` for a file that cannot be read or holds no shape.
const ModelDocument* readStepFile(const std::filesystem::path& file, const ReadingOptions& options,
                                  Model& model);

/// Reads a STEP or STL file (by its extension, any case) as the faces of one body: those of all its solids,
/// placed as the file places them. STL numbers are metres. Warnings are appended to `warnings`. Throws
/// `ModelError` for a file that cannot be read or holds no shape.
std::vector<FaceRecord> readShapeFile(const std::filesystem::path& file, const ReadingOptions& options,
                                      std::vector<std::string>& warnings);

} // namespace orvane::step
