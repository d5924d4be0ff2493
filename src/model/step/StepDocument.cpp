#include "model/step/StepDocument.h"

#include "model/records/ModelError.h"
#include "model/step/GeometryAside.h"
#include "model/step/StepInstances.h"
#include "model/step/StepText.h"
#include "model/step/TransferResult.h"
#include "platform/AsciiCase.h"

#include <Interface_InterfaceModel.hxx>
#include <NCollection_Map.hxx>
#include <StepBasic_Product.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepBasic_ProductDefinitionFormation.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <TopoDS_Iterator.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XSControl_WorkSession.hxx>

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

/// Reads the names of products, and which of them are assemblies.
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

/// Of the entities with the same shape that one counts which leads to all that belongs to it.
int rankOf(const Handle(Standard_Transient) & entity) {
    if (entity->IsKind(STANDARD_TYPE(StepBasic_ProductDefinition))) {
        return 0;
    }
    return entity->IsKind(STANDARD_TYPE(StepShape_ShapeRepresentation)) ? 1 : 2;
}

/// Finds out what each label was made from.
void readSources(STEPControl_Reader& reader, const TransferResult& result, StepDocument& step) {
    const Handle(Interface_InterfaceModel)& model = reader.WS()->Model();
    NCollection_Map<Handle(Standard_Transient)> roots;
    for (Standard_Integer i = 1; i <= reader.NbRootsForTransfer(); ++i) {
        roots.Add(reader.RootForTransfer(i));
    }
    const auto place = [&](const Handle(Standard_Transient) & entity) {
        return std::pair(rankOf(entity), model->Number(entity));
    };
    for (const Handle(Standard_Transient) & entity : result.entities()) {
        const TDF_Label label = result.labelOf(result.shapeOf(entity));
        if (model->Number(entity) == 0 || label.IsNull()) {
            continue;
        }
        const ShapeSource* known = step.sources.Seek(label);
        if (known == nullptr || place(entity) < place(known->entity)) {
            step.sources.Bind(label, {entity, roots.Contains(entity)});
        }
    }
}

} // namespace

StepDocument readStructure(ParsedStepFile& parsed) {
    StepDocument step;
    step.file = parsed.file;
    step.document = new TDocStd_Document("Orvane");
    step.shapes = XCAFDoc_DocumentTool::ShapeTool(step.document->Main());
    step.colors = XCAFDoc_DocumentTool::ColorTool(step.document->Main());
    const Handle(Interface_InterfaceModel)& model = parsed.reader.Reader().WS()->Model();
    const GeometryAside aside(model);
    if (!parsed.reader.Transfer(step.document)) {
        throw ModelError(parsed.file.string() + ": found " +
                         (parsed.unreadTessellation.empty()
                              ? "no shape, expected at least one product with a shape"
                              : parsed.unreadTessellation));
    }
    const TransferResult result(parsed.reader);
    readProducts(model, result, step);
    readInstances(parsed.styles.instances, model, result, step);
    assignExternalFiles(parsed.references, result, step, parsed.warnings);
    readSources(parsed.reader.ChangeReader(), result, step);
    step.shapes->GetFreeShapes(step.roots);
    return step;
}

} // namespace orvane::step
