#include "model/step/StepDocument.h"

#include "model/records/ModelError.h"
#include "model/step/ExternalReferences.h"
#include "model/step/InstanceStyles.h"
#include "model/step/NestingCheck.h"
#include "model/step/StepDamage.h"
#include "model/step/StepFileCheck.h"
#include "model/step/StepInstances.h"
#include "model/step/StepText.h"
#include "model/step/TransferResult.h"
#include "platform/AsciiCase.h"

#include <Interface_InterfaceModel.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <StepBasic_Product.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepBasic_ProductDefinitionFormation.hxx>
#include <StepData_StepModel.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>
#include <StepShape_SolidModel.hxx>
#include <TopoDS_Iterator.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XSControl_WorkSession.hxx>

#include <fstream>

namespace orvane::step {

namespace {

/// Of product definitions that share a shape, the first names it.
void readProductName(const Handle(StepBasic_ProductDefinition) & definition, const TDF_Label& label,
                     StepDocument& step) {
    if (step.productNames.IsBound(label) || definition->Formation().IsNull() ||
        definition->Formation()->OfProduct().IsNull()) {
        return;
    }
    const Handle(StepBasic_Product) product = definition->Formation()->OfProduct();
    std::u16string name = fromStepText(product->Name());
    if (isInventedProductName(name)) {
        name = fromStepText(product->Id());
    }
    if (!isInventedProductName(name)) {
        step.productNames.Bind(label, name);
    }
}

/// The kernel also takes for an assembly what is one product with several representations: solids in one,
/// surfaces in another. A real one has a product somewhere below it.
bool findAssemblies(const TDF_Label& label, const LabelMap<bool>& products, StepDocument& step) {
    if (const bool* known = step.assemblies.Seek(label)) {
        return *known;
    }
    bool isAssembly = false;
    TDF_LabelSequence components;
    XCAFDoc_ShapeTool::GetComponents(label, components);
    for (const TDF_Label& component : components) {
        TDF_Label referred;
        if (XCAFDoc_ShapeTool::GetReferredShape(component, referred)) {
            const bool isOneBelow = findAssemblies(referred, products, step);
            isAssembly = isAssembly || isOneBelow || products.IsBound(referred);
        }
    }
    step.assemblies.Bind(label, isAssembly);
    return isAssembly;
}

void readShapeName(const Handle(StepRepr_RepresentationItem) & item, const TransferResult& result,
                   StepDocument& step) {
    const std::u16string name = fromStepText(item->Name());
    const TopoDS_Shape shape = result.shapeOf(item);
    if (!shape.IsNull() && !name.empty() && name != u"NONE") {
        step.shapeNames.Bind(withoutLocation(shape), name);
    }
}

/// Reads the names of products and bodies, and which products are assemblies.
void readProducts(const Handle(Interface_InterfaceModel) & model, const TransferResult& result,
                  StepDocument& step) {
    LabelMap<bool> products;
    for (Standard_Integer i = 1; i <= model->NbEntities(); ++i) {
        const Handle(Standard_Transient) entity = model->Value(i);
        if (const auto definition = Handle(StepBasic_ProductDefinition)::DownCast(entity);
            !definition.IsNull()) {
            const TDF_Label label = result.labelOf(result.shapeOf(definition));
            if (!label.IsNull()) {
                products.Bind(label, true);
                readProductName(definition, label, step);
            }
        } else if (entity->IsKind(STANDARD_TYPE(StepShape_SolidModel)) ||
                   entity->IsKind(STANDARD_TYPE(StepShape_ShellBasedSurfaceModel))) {
            readShapeName(Handle(StepRepr_RepresentationItem)::DownCast(entity), result, step);
        }
    }
    TDF_LabelSequence labels;
    step.shapes->GetShapes(labels);
    for (const TDF_Label& label : labels) {
        findAssemblies(label, products, step);
    }
}

bool isStepFileName(const std::filesystem::path& file) {
    const std::string extension = asciiLower(file.extension().string());
    return extension == ".step" || extension == ".stp" || extension == ".p21";
}

/// A product with a shape of its own keeps it: what it refers to is a drawing or the like.
void assignExternalFiles(const std::vector<ExternalReference>& references, const TransferResult& result,
                         StepDocument& step, std::vector<std::string>& warnings) {
    for (const ExternalReference& reference : references) {
        const TopoDS_Shape shape = result.shapeOf(reference.product);
        const TDF_Label label = result.labelOf(shape);
        if (label.IsNull() || step.externalFiles.IsBound(label) || TopoDS_Iterator(shape).More()) {
            continue;
        }
        if (isStepFileName(reference.file)) {
            step.externalFiles.Bind(label, reference.file);
        } else {
            warnings.push_back(step.file.string() + ": refers to " + reference.file.string() +
                               ", which is no STEP file; what it holds is missing");
        }
    }
}

void parse(STEPControl_Reader& reader, const std::filesystem::path& file,
           std::vector<std::string>& warnings) {
    // The stream opens any path, and the kernel does not look for files of its own beside a bare name.
    std::ifstream stream(file, std::ios::binary);
    if (reader.ReadStream("model.step", stream) != IFSelect_RetDone) {
        throw ModelError(file.string() + ": found text that is not in the exchange structure of STEP, "
                                         "expected 'HEADER;', 'DATA;' and one entity a statement");
    }
    const Damage damage = findDamage(reader.WS()->Graph());
    if (!damage.fatal.empty()) {
        throw ModelError(file.string() + ": found " + damage.fatal + ", expected whole statements");
    }
    for (const std::string& fault : damage.harmless) {
        warnings.push_back(file.string() + ": " + fault);
    }
    if (const std::string fault = findEndlessNesting(reader.WS()->Graph()); !fault.empty()) {
        throw ModelError(file.string() + ": found that " + fault +
                         ", expected a structure that can be expanded");
    }
}

} // namespace

StepDocument loadStepDocument(const std::filesystem::path& file, std::vector<std::string>& warnings) {
    checkStepFile(file);
    StepDocument step;
    step.file = file;
    step.document = new TDocStd_Document("Orvane");
    step.shapes = XCAFDoc_DocumentTool::ShapeTool(step.document->Main());
    step.colors = XCAFDoc_DocumentTool::ColorTool(step.document->Main());

    STEPCAFControl_Reader reader;
    reader.SetNameMode(Standard_False); // see `readInstances`
    reader.SetLayerMode(Standard_False);
    reader.SetPropsMode(Standard_False);
    reader.SetGDTMode(Standard_False);
    reader.SetMatMode(Standard_False);
    reader.SetViewMode(Standard_False);
    reader.SetSHUOMode(Standard_False); // see `takeInstanceStyles`
    parse(reader.ChangeReader(), file, warnings);
    const std::vector<ExternalReference> references =
        takeExternalReferences(reader.Reader().WS(), file.parent_path());
    const std::vector<InstanceStyle> styles = takeInstanceStyles(reader.Reader().WS());
    if (!reader.Transfer(step.document)) {
        throw ModelError(file.string() + ": found no shape, expected at least one product with a shape");
    }
    const Handle(Interface_InterfaceModel)& model = reader.Reader().WS()->Model();
    const TransferResult result(reader);
    readProducts(model, result, step);
    readInstances(styles, model, result, step);
    assignExternalFiles(references, result, step, warnings);
    step.shapes->GetFreeShapes(step.roots);
    return step;
}

} // namespace orvane::step
