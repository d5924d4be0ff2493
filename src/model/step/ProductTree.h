#pragma once

#include "model/records/ModelRecords.h"
#include "model/records/ReadingOptions.h"
#include "model/step/StepProcesses.h"
#include "model/step/StepText.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace orvane::step {

/// Turns STEP files into documents: each product into one, shared by its instances, and each file into that
/// of its only product or an assembly of all of them.
class ProductTree {
public:
    ProductTree(const ReadingOptions& options, Model& model) : options_(options), model_(model) {}

    /// Reads a file and those that it refers to. Throws `ModelError`.
    const ModelDocument* readFile(const std::filesystem::path& file);

private:
    /// One file on its way.
    struct File {
        std::filesystem::path name; ///< absolute
        StepFile step;
        std::u16string path; ///< the host's
        std::u16string title;
        SiblingNames documentNames;
        std::vector<const ModelDocument*> documents; ///< by product
        std::vector<std::u16string> componentNames;  ///< leaf names by instance
        std::vector<std::u16string> way;             ///< leaf names from the top down to what is being filled
    };

    const ModelDocument* readRoots(File& file);
    const ModelDocument* documentOf(File& file, std::uint32_t product);
    void fillDocument(File& file, std::uint32_t product, ModelDocument& document);
    void fillPart(File& file, std::uint32_t product, ModelDocument& part);
    void fillAssembly(File& file, const std::vector<std::uint32_t>& instances, ModelDocument& assembly);
    ModelDocument& addDocument(const std::u16string& path, const std::u16string& title);

    const ReadingOptions& options_;
    Model& model_;
    std::map<std::filesystem::path, const ModelDocument*> files_; ///< null while a file is being read
};

} // namespace orvane::step
