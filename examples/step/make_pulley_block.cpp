// Makes pulley_block.step: a base plate, two bearing units, a shaft with a pulley, four bolts with washers
// and a clear guard. It has what an assembly file can have: products that are used several times, assemblies
// in assemblies, turned instances, colours of products, of faces and of one instance, and a transparent part.
// Lengths are millimetres.
#include <APIHeaderSection_MakeHeader.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepFilletAPI_MakeFillet.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Interface_Static.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <StepData_StepModel.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Compound.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gp_Ax1.hxx>
#include <gp_Ax2.hxx>
#include <gp_Trsf.hxx>

#include <cmath>
#include <iostream>
#include <numbers>

namespace {

constexpr double kShaftHeight = 40;
constexpr double kBearingDistance = 30; // from the middle, along x

gp_Trsf moved(double x, double y, double z) {
    gp_Trsf transform;
    transform.SetTranslation(gp_Vec(x, y, z));
    return transform;
}

gp_Trsf turned(const gp_Dir& axis, double degrees) {
    gp_Trsf transform;
    transform.SetRotation(gp_Ax1(gp_Pnt(), axis), degrees * std::numbers::pi / 180);
    return transform;
}

Quantity_ColorRGBA color(int red, int green, int blue, float alpha = 1) {
    return Quantity_ColorRGBA(Quantity_Color(red / 255., green / 255., blue / 255., Quantity_TOC_sRGB),
                              alpha);
}

TopoDS_Shape cylinder(const gp_Pnt& foot, const gp_Dir& axis, double radius, double height) {
    return BRepPrimAPI_MakeCylinder(gp_Ax2(foot, axis), radius, height).Shape();
}

bool isVertical(const TopoDS_Edge& edge) {
    double first = 0;
    double last = 0;
    const Handle(Geom_Curve) curve = BRep_Tool::Curve(edge, first, last);
    const gp_Vec along(curve->Value(first), curve->Value(last));
    return std::hypot(along.X(), along.Y()) < 1e-6;
}

TopoDS_Shape makeBase() {
    const TopoDS_Shape box = BRepPrimAPI_MakeBox(gp_Pnt(-50, -35, 0), 100, 70, 10).Shape();
    BRepFilletAPI_MakeFillet fillet(box);
    for (TopExp_Explorer it(box, TopAbs_EDGE); it.More(); it.Next()) {
        if (isVertical(TopoDS::Edge(it.Current()))) {
            fillet.Add(8, TopoDS::Edge(it.Current()));
        }
    }
    TopoDS_Shape base = fillet.Shape();
    for (const double x : {-42., 42.}) {
        for (const double y : {-27., 27.}) {
            base = BRepAlgoAPI_Cut(base, cylinder(gp_Pnt(x, y, 0), gp::DZ(), 3.3, 10)).Shape();
        }
    }
    return base;
}

// Stands on z = 0; the shaft runs along x.
TopoDS_Shape makeHousing() {
    const TopoDS_Shape foot = BRepPrimAPI_MakeBox(gp_Pnt(-6, -18, 0), 12, 36, kShaftHeight - 10).Shape();
    const TopoDS_Shape head = cylinder(gp_Pnt(-6, 0, kShaftHeight - 10), gp::DX(), 18, 12);
    const TopoDS_Shape body = BRepAlgoAPI_Fuse(foot, head).Shape();
    return BRepAlgoAPI_Cut(body, cylinder(gp_Pnt(-6, 0, kShaftHeight - 10), gp::DX(), 9, 12)).Shape();
}

// Along x, with a collar on the side of the smaller x.
TopoDS_Shape makeBushing() {
    const TopoDS_Shape sleeve = cylinder(gp_Pnt(-6, 0, 0), gp::DX(), 9, 12);
    const TopoDS_Shape collar = cylinder(gp_Pnt(-9, 0, 0), gp::DX(), 12, 3);
    const TopoDS_Shape body = BRepAlgoAPI_Fuse(sleeve, collar).Shape();
    return BRepAlgoAPI_Cut(body, cylinder(gp_Pnt(-9, 0, 0), gp::DX(), 6, 15)).Shape();
}

TopoDS_Shape makeShaft() {
    const TopoDS_Shape rod = cylinder(gp_Pnt(-46, 0, 0), gp::DX(), 6, 92);
    const gp_Ax2 end(gp_Pnt(46, 0, 0), gp::DX());
    return BRepAlgoAPI_Fuse(rod, BRepPrimAPI_MakeCone(end, 6, 4, 3).Shape()).Shape();
}

TopoDS_Shape makePulley() {
    TopoDS_Shape pulley = cylinder(gp_Pnt(-8, 0, 0), gp::DX(), 24, 16);
    pulley =
        BRepAlgoAPI_Cut(pulley, BRepPrimAPI_MakeTorus(gp_Ax2(gp_Pnt(), gp::DX()), 25, 5).Shape()).Shape();
    pulley = BRepAlgoAPI_Cut(pulley, cylinder(gp_Pnt(-8, 0, 0), gp::DX(), 6, 16)).Shape();
    for (int hole = 0; hole < 4; ++hole) {
        const double angle = (hole + 0.5) * std::numbers::pi / 2;
        const gp_Pnt foot(-8, 13 * std::cos(angle), 13 * std::sin(angle));
        pulley = BRepAlgoAPI_Cut(pulley, cylinder(foot, gp::DX(), 3.5, 16)).Shape();
    }
    return pulley;
}

// The washer lies under z = 0, the head on it.
TopoDS_Shape makeBolt() {
    const TopoDS_Shape head = cylinder(gp_Pnt(), gp::DZ(), 5, 6);
    const TopoDS_Shape socket = cylinder(gp_Pnt(0, 0, 3), gp::DZ(), 2.5, 3);
    const TopoDS_Shape shank = cylinder(gp_Pnt(0, 0, -11), gp::DZ(), 3, 11);
    return BRepAlgoAPI_Fuse(BRepAlgoAPI_Cut(head, socket).Shape(), shank).Shape();
}

TopoDS_Shape makeWasher() {
    return BRepAlgoAPI_Cut(cylinder(gp_Pnt(0, 0, -1), gp::DZ(), 6, 1),
                           cylinder(gp_Pnt(0, 0, -1), gp::DZ(), 3.2, 1))
        .Shape();
}

TopoDS_Shape makeGuard() {
    const TopoDS_Shape outside = BRepPrimAPI_MakeBox(gp_Pnt(-14, -30, 0), 28, 60, 62).Shape();
    const TopoDS_Shape inside = BRepPrimAPI_MakeBox(gp_Pnt(-12, -28, 0), 24, 56, 60).Shape();
    const TopoDS_Shape gap = cylinder(gp_Pnt(-14, 0, kShaftHeight - 10), gp::DX(), 7, 28);
    const TopoDS_Shape slot = BRepPrimAPI_MakeBox(gp_Pnt(-14, -7, 0), 28, 14, kShaftHeight - 10).Shape();
    return BRepAlgoAPI_Cut(BRepAlgoAPI_Cut(BRepAlgoAPI_Cut(outside, inside).Shape(), gap).Shape(), slot)
        .Shape();
}

/// Products and instances with their names and colours.
class Builder {
public:
    Builder()
        : document_(new TDocStd_Document("Orvane")),
          shapes_(XCAFDoc_DocumentTool::ShapeTool(document_->Main())),
          colors_(XCAFDoc_DocumentTool::ColorTool(document_->Main())) {
        XCAFDoc_ShapeTool::SetAutoNaming(Standard_False);
    }

    TDF_Label part(const char* name, const TopoDS_Shape& shape, const Quantity_ColorRGBA& look) {
        // A boolean operation wraps its one solid into a compound.
        const TDF_Label label =
            shapes_->AddShape(TopExp_Explorer(shape, TopAbs_SOLID).Current(), Standard_False);
        TDataStd_Name::Set(label, name);
        colors_->SetColor(label, look, XCAFDoc_ColorSurf);
        return label;
    }

    TDF_Label assembly(const char* name) {
        BRep_Builder builder;
        TopoDS_Compound nothing;
        builder.MakeCompound(nothing);
        const TDF_Label label = shapes_->AddShape(nothing, Standard_True);
        TDataStd_Name::Set(label, name);
        return label;
    }

    // The kernel's writer loses the name of an instance that is not moved; it then reads as its product's.
    TDF_Label place(const TDF_Label& parent, const TDF_Label& product, const char* name,
                    const gp_Trsf& transform) {
        const TDF_Label label = shapes_->AddComponent(parent, product, TopLoc_Location(transform));
        TDataStd_Name::Set(label, name);
        return label;
    }

    void paint(const TDF_Label& label, const Quantity_ColorRGBA& look) {
        colors_->SetColor(label, look, XCAFDoc_ColorSurf);
    }

    void paintFace(const TDF_Label& part, int number, const Quantity_ColorRGBA& look) {
        TopExp_Explorer it(XCAFDoc_ShapeTool::GetShape(part), TopAbs_FACE);
        for (int i = 0; i < number; ++i) {
            it.Next();
        }
        colors_->SetColor(shapes_->AddSubShape(part, it.Current()), look, XCAFDoc_ColorSurf);
    }

    const Handle(TDocStd_Document) & finish() {
        shapes_->UpdateAssemblies();
        return document_;
    }

private:
    Handle(TDocStd_Document) document_;
    Handle(XCAFDoc_ShapeTool) shapes_;
    Handle(XCAFDoc_ColorTool) colors_;
};

void build(Builder& builder) {
    const TDF_Label base = builder.part("Base Plate", makeBase(), color(70, 90, 110));
    const TDF_Label housing = builder.part("Housing", makeHousing(), color(200, 60, 40));
    const TDF_Label bushing = builder.part("Bushing", makeBushing(), color(205, 150, 70));
    const TDF_Label shaft = builder.part("Shaft", makeShaft(), color(190, 195, 200));
    const TDF_Label pulley = builder.part("Pulley", makePulley(), color(60, 130, 70));
    const TDF_Label bolt = builder.part("Bolt M6x12", makeBolt(), color(50, 50, 55));
    const TDF_Label washer = builder.part("Washer M6", makeWasher(), color(180, 180, 185));
    const TDF_Label guard = builder.part("Guard", makeGuard(), color(150, 200, 230, 0.35f));
    builder.paintFace(base, 0, color(250, 200, 40));

    const TDF_Label bearing = builder.assembly("Bearing Unit");
    builder.place(bearing, housing, "Housing", gp_Trsf());
    builder.place(bearing, bushing, "Bushing", moved(0, 0, kShaftHeight - 10));
    const TDF_Label fastener = builder.assembly("Fastener");
    builder.place(fastener, bolt, "Bolt", moved(0, 0, 1));
    builder.place(fastener, washer, "Washer", moved(0, 0, 1));
    const TDF_Label drive = builder.assembly("Drive");
    builder.place(drive, shaft, "Shaft", gp_Trsf());
    builder.place(drive, pulley, "Pulley", gp_Trsf());

    const TDF_Label block = builder.assembly("Pulley Block");
    builder.place(block, base, "Base Plate", gp_Trsf());
    builder.place(block, bearing, "Bearing Left", moved(-kBearingDistance, 0, 10));
    builder.place(block, bearing, "Bearing Right", moved(kBearingDistance, 0, 10) * turned(gp::DZ(), 180));
    builder.place(block, drive, "Drive", moved(0, 0, kShaftHeight) * turned(gp::DX(), 15));
    for (const double x : {-42., 42.}) {
        for (const double y : {-27., 27.}) {
            builder.place(block, fastener, "Fastener", moved(x, y, 10));
        }
    }
    builder.place(block, guard, "Guard", moved(0, 0, 10));
    const TDF_Label spare = builder.place(block, washer, "Spare Washer", moved(0, -50, 1));
    builder.paint(spare, color(255, 0, 128));
}

// Nothing in the file's header may depend on where and when it is made.
bool write(const Handle(TDocStd_Document) & document, const char* file) {
    STEPCAFControl_Writer writer;
    Interface_Static::SetCVal("write.step.schema", "AP214IS");
    Interface_Static::SetCVal("write.step.unit", "MM");
    if (!writer.Transfer(document)) {
        return false;
    }
    const auto text = [](const char* value) { return new TCollection_HAsciiString(value); };
    APIHeaderSection_MakeHeader header(writer.ChangeWriter().Model());
    header.SetName(text("pulley_block.step"));
    header.SetTimeStamp(text("2024-01-01T00:00:00"));
    header.SetAuthorValue(1, text(""));
    header.SetOrganizationValue(1, text(""));
    header.SetOriginatingSystem(text("make_pulley_block"));
    header.SetAuthorisation(text(""));
    header.SetDescriptionValue(1, text("A pulley block"));
    return writer.Write(file) == IFSelect_RetDone;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_pulley_block FILE.step\n";
        return 2;
    }
    Builder builder;
    build(builder);
    return write(builder.finish(), argv[1]) ? 0 : 1;
}
