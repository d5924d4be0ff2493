#pragma once

#include "support/TemporaryFolder.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRep_Builder.hxx>
#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <STEPCAFControl_Controller.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopoDS_Compound.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gp_Trsf.hxx>
#include <gtest/gtest.h>

/// Makes STEP files. Shapes are in the unit of the file.
namespace orvane::step_maker {

namespace fs = std::filesystem;

inline gp_Trsf moved(double x, double y = 0, double z = 0) {
    gp_Trsf transform;
    transform.SetTranslation(gp_Vec(x, y, z));
    return transform;
}

inline TopoDS_Shape box(double x, double y, double z) {
    return BRepPrimAPI_MakeBox(x, y, z).Shape();
}

inline TopoDS_Shape compoundOf(const std::vector<TopoDS_Shape>& shapes) {
    BRep_Builder builder;
    TopoDS_Compound compound;
    builder.MakeCompound(compound);
    for (const TopoDS_Shape& shape : shapes) {
        builder.Add(compound, shape);
    }
    return compound;
}

inline TopoDS_Shape edge() {
    return BRepBuilderAPI_MakeEdge(gp_Pnt(0, 0, 0), gp_Pnt(1, 1, 1)).Shape();
}

/// A product structure that Open CASCADE writes.
struct StepMaker {
    Handle(TDocStd_Document) document = new TDocStd_Document("Test");
    Handle(XCAFDoc_ShapeTool) shapes = XCAFDoc_DocumentTool::ShapeTool(document->Main());
    Handle(XCAFDoc_ColorTool) colors = XCAFDoc_DocumentTool::ColorTool(document->Main());

    StepMaker() {
        XCAFDoc_ShapeTool::SetAutoNaming(Standard_False);
        Message::DefaultMessenger()->ChangePrinters().Clear(); // the writer reports to standard output
    }

    TDF_Label named(const TDF_Label& label, const std::u16string& name) const {
        if (!name.empty()) {
            TDataStd_Name::Set(label, TCollection_ExtendedString(name.c_str()));
        }
        return label;
    }
    TDF_Label part(const std::u16string& name, const TopoDS_Shape& shape) const {
        return named(shapes->AddShape(shape, Standard_False), name);
    }
    TDF_Label assembly(const std::u16string& name) const {
        return named(shapes->AddShape(compoundOf({}), Standard_True), name);
    }
    TDF_Label place(const TDF_Label& parent, const TDF_Label& product, const std::u16string& name,
                    const gp_Trsf& at) const {
        return named(shapes->AddComponent(parent, product, TopLoc_Location(at)), name);
    }
    void paint(const TDF_Label& label, double red, double green, double blue, float alpha = 1) const {
        const Quantity_Color color(red / 255, green / 255, blue / 255, Quantity_TOC_sRGB);
        colors->SetColor(label, Quantity_ColorRGBA(color, alpha), XCAFDoc_ColorSurf);
    }

    /// With a `prefix` every part goes into a file of its own, whose name begins with it.
    fs::path save(const fs::path& file, const char* unit = "MM", const char* prefix = nullptr) const {
        shapes->UpdateAssemblies();
        STEPCAFControl_Controller::Init();
        Interface_Static::SetCVal("xstep.cascade.unit", unit); // no conversion: numbers go out as they stand
        Interface_Static::SetCVal("write.step.unit", unit);
        STEPCAFControl_Writer writer;
        const fs::path before = fs::current_path();
        fs::current_path(file.parent_path());
        EXPECT_TRUE(writer.Transfer(document, STEPControl_AsIs, prefix));
        EXPECT_EQ(writer.Write(file.string().c_str()), IFSelect_RetDone);
        fs::current_path(before);
        Interface_Static::SetCVal("xstep.cascade.unit", "MM");
        Interface_Static::SetCVal("write.step.unit", "MM");
        return file;
    }
};

inline fs::path saveShape(const fs::path& file, const TopoDS_Shape& shape, const char* unit = "MM") {
    StepMaker maker;
    maker.part(u"Thing", shape);
    return maker.save(file, unit);
}

/// A folder that goes with the test, and a structure to be filled, of which `root` is the top.
struct StepTest : testing::Test {
    fs::path write(const std::string& name, const std::string& bytes) const {
        writeFile(folder / name, bytes);
        return folder / name;
    }

    TemporaryFolder folder;
    StepMaker maker;
    TDF_Label root = maker.assembly(u"Root");
};

} // namespace orvane::step_maker
