#include "model/step/ExternalReferences.h"

#include <Interface_EntityIterator.hxx>
#include <Interface_Graph.hxx>
#include <STEPConstruct_ExternRefs.hxx>
#include <StepAP214_AppliedExternalIdentificationAssignment.hxx>
#include <StepBasic_Document.hxx>
#include <StepBasic_DocumentFile.hxx>
#include <StepBasic_ExternalSource.hxx>
#include <StepBasic_ProductDefinitionWithAssociatedDocuments.hxx>
#include <StepData_SelectNamed.hxx>
#include <TCollection_HAsciiString.hxx>

#include <algorithm>
#include <string>

namespace orvane::step {

namespace {

using Identification = Handle(StepAP214_AppliedExternalIdentificationAssignment);

void addName(const Handle(TCollection_HAsciiString) & text, std::vector<std::string>& names) {
    // Some writers repeat the entity's own number where the file name belongs.
    if (!text.IsNull() && !text->IsEmpty() && !text->String().StartsWith("#")) {
        names.emplace_back(text->ToCString());
    }
}

std::vector<Identification> identificationsOf(const Handle(StepBasic_DocumentFile) & document,
                                              const Interface_Graph& graph) {
    std::vector<Identification> found;
    for (Interface_EntityIterator it = graph.Sharings(document); it.More(); it.Next()) {
        if (const auto identification = Identification::DownCast(it.Value()); !identification.IsNull()) {
            found.push_back(identification);
        }
    }
    return found;
}

/// The documents that the product of a reference names itself.
std::vector<Handle(StepBasic_Document)> productDocuments(const STEPConstruct_ExternRefs& references,
                                                         Standard_Integer number) {
    std::vector<Handle(StepBasic_Document)> documents;
    const auto product =
        Handle(StepBasic_ProductDefinitionWithAssociatedDocuments)::DownCast(references.ProdDef(number));
    const bool hasDocuments = !product.IsNull() && !product->DocIds().IsNull();
    for (Standard_Integer i = 1; hasDocuments && i <= product->NbDocIds(); ++i) {
        documents.push_back(product->DocIdsValue(i));
    }
    return documents;
}

/// What may be the file's name, the most reliable first.
std::vector<std::string> fileNames(const STEPConstruct_ExternRefs& references, Standard_Integer number,
                                   const Interface_Graph& graph) {
    std::vector<std::string> names;
    if (const Handle(StepBasic_DocumentFile) document = references.DocFile(number); !document.IsNull()) {
        for (const Identification& identification : identificationsOf(document, graph)) {
            addName(identification->AssignedId(), names);
            if (!identification->Source().IsNull()) {
                const auto source =
                    Handle(StepData_SelectNamed)::DownCast(identification->Source()->SourceId().Value());
                if (!source.IsNull() && source->Kind() == 6) { // 6: a text
                    addName(new TCollection_HAsciiString(source->String()), names);
                }
            }
        }
        addName(document->Id(), names);
        addName(document->Name(), names);
    }
    for (const Handle(StepBasic_Document) & document : productDocuments(references, number)) {
        addName(document->Name(), names);
    }
    return names;
}

/// Leaves nothing that the kernel could take for a file name.
void blankNames(const STEPConstruct_ExternRefs& references, Standard_Integer number,
                const Interface_Graph& graph) {
    const Handle(TCollection_HAsciiString) empty = new TCollection_HAsciiString;
    if (const Handle(StepBasic_DocumentFile) document = references.DocFile(number); !document.IsNull()) {
        for (const Identification& identification : identificationsOf(document, graph)) {
            identification->SetAssignedId(empty);
            if (!identification->Source().IsNull()) {
                identification->Source()->SetSourceId(StepBasic_SourceItem());
            }
        }
        document->SetId(empty);
        document->SetName(empty);
    }
    for (const Handle(StepBasic_Document) & document : productDocuments(references, number)) {
        document->SetName(empty);
    }
}

std::filesystem::path toPath(std::string name) {
    std::ranges::replace(name, '\\', '/');
    return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

} // namespace

std::vector<ExternalReference> takeExternalReferences(const Handle(XSControl_WorkSession) & session,
                                                      const std::filesystem::path& folder) {
    const Interface_Graph& graph = session->Graph();
    STEPConstruct_ExternRefs references(session);
    references.LoadExternRefs();
    std::vector<ExternalReference> taken;
    for (Standard_Integer number = 1; number <= references.NbExternRefs(); ++number) {
        const Handle(StepBasic_ProductDefinition) product = references.ProdDef(number);
        const std::vector<std::string> names = fileNames(references, number, graph);
        if (product.IsNull() || names.empty()) {
            continue;
        }
        ExternalReference reference{product, folder / toPath(names.front())};
        for (const std::string& name : names) {
            std::error_code error;
            if (std::filesystem::is_regular_file(folder / toPath(name), error)) {
                reference.file = folder / toPath(name);
                break;
            }
        }
        taken.push_back(reference);
    }
    for (Standard_Integer number = 1; number <= references.NbExternRefs(); ++number) {
        blankNames(references, number, graph);
    }
    return taken;
}

} // namespace orvane::step
