#pragma once

#include "model/records/ModelRecords.h"
#include "model/step/StepDocument.h"
#include "model/step/StepReader.h"
#include "model/step/StepText.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace orvane::step {

/// Turns STEP files into documents: each product into one, shared by its instances, and each file into that
/// of its only product or an assembly of all of them. Needs a `KernelSession`.
class ProductTree {
public:
    ProductTree(const MeshingOptions& options, Model& model) : options_(options), model_(model) {}

    /// Reads a file and those that it refers to. Throws `ModelError`.
    const ModelDocument* readFile(const std::filesystem::path& file);

private:
    /// One file on its way.
    struct File {
        StepDocument step;
        std::u16string path; ///< the host's
        std::u16string title;
        SiblingNames documentNames;
        LabelMap<const ModelDocument*> documents; ///< by product
        LabelMap<std::u16string> componentNames;  ///< leaf names by instance
    };

    const ModelDocument* readRoots(File& file);
    const ModelDocument* documentOf(File& file, const TDF_Label& product);
    void fillDocument(File& file, const TDF_Label& product, ModelDocument& document);
    void fillPart(File& file, const TDF_Label& product, ModelDocument& part);
    void fillAssembly(File& file, const TDF_LabelSequence& instances, ModelDocument& assembly);
    ModelDocument& addDocument(const std::u16string& path, const std::u16string& title);

    const MeshingOptions& options_;
    Model& model_;
    std::map<std::filesystem::path, const ModelDocument*> files_; ///< null while a file is being read
};

} // namespace orvane::step
