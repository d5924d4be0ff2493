#include "BoardDocument.h"

#include <APIHeaderSection_MakeHeader.hxx>
#include <BRepBndLib.hxx>
#include <BRep_Builder.hxx>
#include <Interface_Static.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <StepData_StepModel.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Compound.hxx>
#include <XCAFDoc_DocumentTool.hxx>

#include <algorithm>

namespace orvane::board {

namespace {

TopoDS_Shape compoundOf(const BoardPart& part) {
    BRep_Builder builder;
    TopoDS_Compound compound;
    builder.MakeCompound(compound);
    for (const BoardBody& body : part.bodies) {
        builder.Add(compound, body.shape);
    }
    return compound;
}

} // namespace

BoardDocument::BoardDocument()
    : document_(new TDocStd_Document("Orvane")), shapes_(XCAFDoc_DocumentTool::ShapeTool(document_->Main())),
      colors_(XCAFDoc_DocumentTool::ColorTool(document_->Main())) {
    XCAFDoc_ShapeTool::SetAutoNaming(Standard_False);
}

Product BoardDocument::part(const BoardPart& part) {
    const bool isOne = part.bodies.size() == 1;
    const TopoDS_Shape shape = isOne ? part.bodies.front().shape : compoundOf(part);
    Product product = {shapes_->AddShape(shape, Standard_False), part.name, {}};
    TDataStd_Name::Set(product.label, part.name.c_str());
    BRepBndLib::Add(shape, product.box, Standard_False);
    colors_->SetColor(product.label, part.bodies.front().color, XCAFDoc_ColorSurf);
    for (const BoardBody& body : part.bodies) {
        if (!isOne) {
            colors_->SetColor(shapes_->AddSubShape(product.label, body.shape), body.color, XCAFDoc_ColorSurf);
        }
        TopExp_Explorer face(body.shape, TopAbs_FACE);
        for (int i = 0; i < body.painted && face.More(); ++i, face.Next()) {
            colors_->SetColor(shapes_->AddSubShape(product.label, face.Current()), body.paint,
                              XCAFDoc_ColorSurf);
        }
    }
    return product;
}

Product BoardDocument::assembly(const std::string& name) {
    BRep_Builder builder;
    TopoDS_Compound nothing;
    builder.MakeCompound(nothing);
    Product product = {shapes_->AddShape(nothing, Standard_True), name, {}};
    TDataStd_Name::Set(product.label, name.c_str());
    return product;
}

TDF_Label BoardDocument::place(Product& parent, Product& child, const gp_Trsf& transform) {
    const TDF_Label label = shapes_->AddComponent(parent.label, child.label, TopLoc_Location(transform));
    TDataStd_Name::Set(label, (child.name + " " + std::to_string(++child.placed)).c_str());
    parent.box.Add(child.box.Transformed(transform));
    return label;
}

void BoardDocument::paint(const TDF_Label& instance, const Quantity_ColorRGBA& look) {
    colors_->SetColor(instance, look, XCAFDoc_ColorSurf);
}

BoardDocument::Counts BoardDocument::counts(const TDF_Label& product) {
    Counts sum;
    TDF_LabelSequence components;
    if (!XCAFDoc_ShapeTool::GetComponents(product, components)) {
        for (TopExp_Explorer it(XCAFDoc_ShapeTool::GetShape(product), TopAbs_FACE); it.More(); it.Next()) {
            ++sum.faces;
        }
        sum.leaves = 1;
    }
    for (const TDF_Label& component : components) {
        TDF_Label child;
        XCAFDoc_ShapeTool::GetReferredShape(component, child);
        const Counts part = counts(child);
        sum.leaves += part.leaves;
        sum.faces += part.faces;
    }
    return sum;
}

// Nothing in the file's header may depend on where and when it is made.
bool BoardDocument::write(const std::string& file) {
    shapes_->UpdateAssemblies();
    STEPCAFControl_Writer writer;
    Interface_Static::SetCVal("write.step.schema", "AP214IS");
    Interface_Static::SetCVal("write.step.unit", "MM");
    // Most CAD systems write no curves in the parameters of surfaces.
    Interface_Static::SetIVal("write.surfacecurve.mode", 0);
    if (!writer.Transfer(document_)) {
        return false;
    }
    const auto text = [](const char* value) { return new TCollection_HAsciiString(value); };
    APIHeaderSection_MakeHeader header(writer.ChangeWriter().Model());
    header.SetName(text("board.step"));
    header.SetTimeStamp(text("2024-01-01T00:00:00"));
    header.SetAuthorValue(1, text(""));
    header.SetOrganizationValue(1, text(""));
    header.SetOriginatingSystem(text("make_board"));
    header.SetAuthorisation(text(""));
    header.SetDescriptionValue(1, text("A printed circuit board"));
    return writer.Write(file.c_str()) == IFSelect_RetDone;
}

} // namespace orvane::board
