#include "model/step/StepDocument.h"

#include "model/records/ModelError.h"
#include "model/step/ExternalReferences.h"
#include "model/step/InstanceStyles.h"
#include "model/step/NestingCheck.h"
#include "model/step/StepDamage.h"
#include "model/step/StepFileCheck.h"
#include "model/step/StepText.h"
#include "platform/AsciiCase.h"

#include <Interface_InterfaceModel.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <StepBasic_Product.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepBasic_ProductDefinitionFormation.hxx>
#include <StepData_StepModel.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>
#include <StepShape_SolidModel.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Iterator.hxx>
#include <TransferBRep.hxx>
#include <Transfer_Binder.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <fstream>
#include <unordered_map>

namespace orvane::step {

namespace {

std::u16string textOf(const Handle(TCollection_HAsciiString) & text) {
    return text.IsNull() ? std::u16string() : fromStepText(text->ToCString());
}

TopoDS_Shape withoutLocation(const TopoDS_Shape& shape) {
    return shape.Located(TopLoc_Location());
}

/// What the transfer made of the file's entities.
class TransferResult {
public:
    TransferResult(const STEPCAFControl_Reader& reader)
        : process_(reader.Reader().WS()->TransferReader()->TransientProcess()),
          labels_(reader.GetShapeLabelMap()) {}

    TopoDS_Shape shapeOf(const Handle(Standard_Transient) & entity) const {
        if (entity.IsNull()) {
            return {};
        }
        const Handle(Transfer_Binder) binder = process_->Find(entity);
        return binder.IsNull() || !binder->HasResult() ? TopoDS_Shape()
                                                       : TransferBRep::ShapeResult(process_, binder);
    }

    TDF_Label labelOf(const TopoDS_Shape& shape) const {
        const TDF_Label* label = shape.IsNull() ? nullptr : labels_.Seek(withoutLocation(shape));
        return label == nullptr ? TDF_Label() : *label;
    }

private:
    Handle(Transfer_TransientProcess) process_;
    const XCAFDoc_DataMapOfShapeLabel& labels_;
};

// Of product definitions that share a shape, the first names it.
void readProductName(const Handle(StepBasic_ProductDefinition) & definition, const TDF_Label& label,
                     StepDocument& step) {
    if (step.productNames.IsBound(label) || definition->Formation().IsNull() ||
        definition->Formation()->OfProduct().IsNull()) {
        return;
    }
    const Handle(StepBasic_Product) product = definition->Formation()->OfProduct();
    std::u16string name = textOf(product->Name());
    if (isInventedProductName(name)) {
        name = textOf(product->Id());
    }
    if (!isInventedProductName(name)) {
        step.productNames.Bind(label, name);
    }
}

// The kernel finds an instance by its shape and location alone, which gives names away to instances of the
// same product at the same place in other assemblies; here the parent decides.
TDF_Label readInstance(const Handle(StepRepr_NextAssemblyUsageOccurrence) & usage,
                       const TransferResult& result, LabelMap<TDF_LabelSequence>& unnamed,
                       StepDocument& step) {
    const TDF_Label parent = result.labelOf(result.shapeOf(usage->RelatingProductDefinition()));
    const TopoDS_Shape shape = result.shapeOf(usage);
    const TDF_Label product = result.labelOf(shape);
    if (parent.IsNull() || product.IsNull() || !XCAFDoc_ShapeTool::IsAssembly(parent)) {
        return {};
    }
    if (!unnamed.IsBound(parent)) {
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(parent, components);
        unnamed.Bind(parent, components);
    }
    TDF_LabelSequence& components = unnamed.ChangeFind(parent);
    for (Standard_Integer i = 1; i <= components.Length(); ++i) {
        const TDF_Label component = components.Value(i);
        TDF_Label referred;
        if (!XCAFDoc_ShapeTool::GetReferredShape(component, referred) || referred != product ||
            XCAFDoc_ShapeTool::GetLocation(component) != shape.Location()) {
            continue;
        }
        const std::u16string* productName = step.productNames.Seek(product);
        const std::u16string name = instanceName(
            usage->HasDescription() ? textOf(usage->Description()) : std::u16string(), textOf(usage->Name()),
            textOf(usage->Id()), productName ? *productName : std::u16string());
        if (!name.empty()) {
            step.instanceNames.Bind(component, name);
        }
        components.Remove(i);
        return component;
    }
    return {};
}

void readInstances(const std::vector<InstanceStyle>& styles, const Handle(Interface_InterfaceModel) & model,
                   const TransferResult& result, StepDocument& step) {
    LabelMap<TDF_LabelSequence> unnamed;
    std::unordered_map<const Standard_Transient*, TDF_Label> instances;
    for (Standard_Integer i = 1; i <= model->NbEntities(); ++i) {
        const auto usage = Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(model->Value(i));
        if (!usage.IsNull()) {
            instances[usage.get()] = readInstance(usage, result, unnamed, step);
        }
    }
    for (const InstanceStyle& style : styles) {
        InstanceColor color{{}, style.color};
        for (const auto& usage : style.path) {
            color.path.push_back(instances[usage.get()]);
        }
        if (std::ranges::any_of(color.path, &TDF_Label::IsNull)) {
            continue;
        }
        if (!step.instanceColors.IsBound(color.path.front())) {
            step.instanceColors.Bind(color.path.front(), {});
        }
        step.instanceColors.ChangeFind(color.path.front()).push_back(color);
    }
}

// The kernel also takes for an assembly what is one product with several representations: solids in one,
// surfaces in another. A real one has a product somewhere below it.
bool findAssemblies(const TDF_Label& label, const LabelMap<bool>& products, StepDocument& step) {
    if (const bool* known = step.assemblies.Seek(label)) {
        return *known;
    }
    bool assembly = false;
    TDF_LabelSequence components;
    XCAFDoc_ShapeTool::GetComponents(label, components);
    for (const TDF_Label& component : components) {
        TDF_Label referred;
        if (XCAFDoc_ShapeTool::GetReferredShape(component, referred)) {
            const bool below = findAssemblies(referred, products, step);
            assembly = assembly || below || products.IsBound(referred);
        }
    }
    step.assemblies.Bind(label, assembly);
    return assembly;
}

void readProducts(const STEPCAFControl_Reader& reader, const std::vector<InstanceStyle>& styles,
                  StepDocument& step) {
    const TransferResult result(reader);
    const Handle(Interface_InterfaceModel)& model = reader.Reader().WS()->Model();
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
            const std::u16string name = textOf(Handle(StepRepr_RepresentationItem)::DownCast(entity)->Name());
            const TopoDS_Shape shape = result.shapeOf(entity);
            if (!shape.IsNull() && !name.empty() && name != u"NONE") {
                step.shapeNames.Bind(withoutLocation(shape), name);
            }
        }
    }
    readInstances(styles, model, result, step);
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

// A product with a shape of its own keeps it: what it refers to is a drawing or the like.
void assignExternalFiles(const std::vector<ExternalReference>& references,
                         const STEPCAFControl_Reader& reader, StepDocument& step,
                         std::vector<std::string>& warnings) {
    const TransferResult result(reader);
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
    reader.SetNameMode(Standard_False); // see `readInstance`
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
    readProducts(reader, styles, step);
    assignExternalFiles(references, reader, step, warnings);
    step.shapes->GetFreeShapes(step.roots);
    return step;
}

} // namespace orvane::step
