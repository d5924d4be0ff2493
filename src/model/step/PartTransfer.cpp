#include "model/step/PartTransfer.h"

#include "model/step/StepText.h"
#include "model/step/TransferResult.h"

#include <Interface_Static.hxx>
#include <STEPCAFControl_DataMapOfPDExternFile.hxx>
#include <STEPCAFControl_DataMapOfShapePD.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepShape_FaceBasedSurfaceModel.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>
#include <StepShape_SolidModel.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS_Iterator.hxx>
#include <Transfer_ActorOfTransientProcess.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XSControl_TransferReader.hxx>

#include <algorithm>

namespace orvane::step {

namespace {

using Entity = Handle(Standard_Transient);

/// The kernel's reader, for the labels that it gives to shapes.
struct LabelMaker : STEPCAFControl_Reader {
    using STEPCAFControl_Reader::AddShape;
};

Handle(Transfer_TransientProcess) transfer(const ParsedStepFile& parsed, const ShapeSource& source) {
    const Handle(XSControl_WorkSession) session = parsed.reader.Reader().WS();
    const Handle(Transfer_TransientProcess) process = new Transfer_TransientProcess();
    process->SetActor(session->TransferReader()->Actor());
    process->SetErrorHandle(Standard_True);
    process->SetModel(session->Model());
    process->SetGraph(session->HGraph());
    Interface_Static::SetIVal("read.step.root.transformation", source.isRoot ? 1 : 0);
    process->Transferring(source.entity);
    return process;
}

void collectCompounds(const TopoDS_Shape& shape, TopTools_MapOfShape& shapes) {
    shapes.Add(withoutLocation(shape));
    if (shape.ShapeType() == TopAbs_COMPOUND) {
        for (TopoDS_Iterator it(shape); it.More(); it.Next()) {
            collectCompounds(it.Value(), shapes);
        }
    }
}

/// Shapes that get labels of their own where a compound holds them: those of products and representations.
TopTools_MapOfShape labelledShapes(const std::vector<Entity>& entities, const TransferResult& result,
                                   const TopoDS_Shape& whole) {
    TopTools_MapOfShape all;
    collectCompounds(whole, all);
    TopTools_MapOfShape labelled;
    for (const Entity& entity : entities) {
        if (entity->IsKind(STANDARD_TYPE(StepBasic_ProductDefinition)) ||
            entity->IsKind(STANDARD_TYPE(StepShape_ShapeRepresentation))) {
            const TopoDS_Shape shape = result.shapeOf(entity);
            if (!shape.IsNull() && all.Contains(shape)) {
                labelled.Add(shape);
            }
        }
    }
    return labelled;
}

bool isBody(const Entity& entity) {
    return entity->IsKind(STANDARD_TYPE(StepShape_SolidModel)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_ShellBasedSurfaceModel));
}

void readBodies(const std::vector<Entity>& entities, const TransferResult& result,
                const Handle(Interface_InterfaceModel) & model, PartShape& part) {
    for (const Entity& entity : entities) {
        if (!isBody(entity)) {
            continue;
        }
        const TopoDS_Shape shape = result.shapeOf(entity);
        if (shape.IsNull()) {
            part.losses.push_back(std::string(model->StringLabel(entity)->ToCString()) + " gave no shape");
            continue;
        }
        const auto item = Handle(StepRepr_RepresentationItem)::DownCast(entity);
        if (const std::u16string name = fromStepText(item->Name()); !name.empty() && name != u"NONE") {
            part.names.Bind(withoutLocation(shape), name);
        }
    }
}

void paint(const PartShape& part, const TopoDS_Shape& shape, const ItemStyle& style) {
    TDF_Label label;
    if (part.shapes->SearchUsingMap(shape, label, Standard_False, Standard_True)) {
        if (style.surface) {
            part.colors->SetColor(label, *style.surface, XCAFDoc_ColorSurf);
        }
        if (!style.isVisible) {
            part.colors->SetVisibility(label, Standard_False);
        }
        return;
    }
    // A compound without a label stands for what is in it.
    for (TopoDS_Iterator it(shape); style.surface && it.More(); it.Next()) {
        if (part.shapes->SearchUsingMap(it.Value(), label, Standard_False, Standard_True)) {
            part.colors->SetColor(label, *style.surface, XCAFDoc_ColorSurf);
        }
    }
}

/// Paints what was transferred, in the order of the file's styles.
void paintItems(const std::vector<Entity>& entities, const TransferResult& result, const StepStyles& styles,
                const PartShape& part) {
    std::vector<std::pair<std::uint32_t, Entity>> found;
    for (const Entity& entity : entities) {
        if (const auto own = styles.byItem.find(entity.get()); own != styles.byItem.end()) {
            for (const std::uint32_t style : own->second) {
                found.emplace_back(style, entity);
            }
        }
    }
    std::ranges::sort(found, {}, &std::pair<std::uint32_t, Entity>::first);
    for (const auto& [style, entity] : found) {
        if (const TopoDS_Shape shape = result.shapeOf(entity); !shape.IsNull()) {
            paint(part, shape, styles.items[style]);
        }
    }
    part.colors->ReverseChainsOfTreeNodes();
}

/// The kernel's rule: what a product says of itself holds for those in it that say nothing.
void passDown(const PartShape& part, const TDF_Label& product) {
    TDF_LabelSequence components;
    XCAFDoc_ShapeTool::GetComponents(product, components);
    for (const TDF_Label& component : components) {
        TDF_Label below = component;
        XCAFDoc_ShapeTool::GetReferredShape(component, below);
        TDF_Label color;
        TDF_Label own;
        if (part.colors->GetColor(product, XCAFDoc_ColorSurf, color) &&
            !part.colors->GetColor(below, XCAFDoc_ColorSurf, own)) {
            part.colors->SetColor(below, color, XCAFDoc_ColorSurf);
        }
        if (!part.colors->IsVisible(product)) {
            part.colors->SetVisibility(below, Standard_False);
        }
        if (XCAFDoc_ShapeTool::IsAssembly(below)) {
            passDown(part, below);
        }
    }
}

void inherit(const PartJob& job, const PartShape& part) {
    TDF_Label own;
    if (job.inheritedSurface && !part.colors->GetColor(part.product, XCAFDoc_ColorSurf, own)) {
        part.colors->SetColor(part.product, *job.inheritedSurface, XCAFDoc_ColorSurf);
    }
    if (!job.isInheritedVisible) {
        part.colors->SetVisibility(part.product, Standard_False);
    }
    passDown(part, part.product);
}

} // namespace

PartShape transferPart(const ParsedStepFile& parsed, const PartJob& job) {
    PartShape part;
    part.document = new TDocStd_Document("Orvane");
    part.shapes = XCAFDoc_DocumentTool::ShapeTool(part.document->Main());
    part.colors = XCAFDoc_DocumentTool::ColorTool(part.document->Main());
    LabelMaker labels;
    const TransferResult result(transfer(parsed, job.source), labels);
    const Handle(Interface_InterfaceModel)& model = parsed.reader.Reader().WS()->Model();
    std::vector<Entity> entities = result.entities();
    std::ranges::sort(entities, {}, [&](const Entity& entity) { return model->Number(entity); });
    readBodies(entities, result, model, part);
    const TopoDS_Shape located = result.shapeOf(job.source.entity);
    if (located.IsNull()) {
        return part;
    }
    const TopoDS_Shape whole = withoutLocation(located);
    part.product = labels.AddShape(whole, part.shapes, labelledShapes(entities, result, whole),
                                   STEPCAFControl_DataMapOfShapePD(), STEPCAFControl_DataMapOfPDExternFile());
    paintItems(entities, result, parsed.styles, part);
    inherit(job, part);
    part.shapes->UpdateAssemblies();
    return part;
}

} // namespace orvane::step
