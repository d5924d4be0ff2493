#pragma once

#include <StepBasic_ProductDefinition.hxx>
#include <XSControl_WorkSession.hxx>

#include <filesystem>
#include <vector>

namespace orvane::step {

/// A product whose shape stands in another file.
struct ExternalReference {
    Handle(StepBasic_ProductDefinition) product;
    std::filesystem::path
        file; ///< as the file names it, against the folder of the file that names it; may be missing
};

/// Takes the external references out of a file that was parsed but not yet transferred, so that the kernel
/// does not follow them: it would take one shape of each file only, pass over files of newer protocols and
/// missing ones without a word, and never return from files that refer to each other.
std::vector<ExternalReference> takeExternalReferences(const Handle(XSControl_WorkSession) & session,
                                                      const std::filesystem::path& folder);

} // namespace orvane::step
