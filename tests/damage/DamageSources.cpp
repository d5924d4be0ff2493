#include "damage/DamageSources.h"

#include "damage/StepStatements.h"
#include "support/Paths.h"
#include "support/StepMaker.h"

#include <BRepBuilderAPI_NurbsConvert.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <Geom_BezierCurve.hxx>
#include <TColgp_Array1OfPnt.hxx>

namespace orvane::step_damage {

namespace {

using namespace step_maker;

TopoDS_Shape curvedEdge() {
    TColgp_Array1OfPnt poles(1, 4);
    poles(1) = gp_Pnt(5, 0, 0);
    poles(2) = gp_Pnt(9, 0, 4);
    poles(3) = gp_Pnt(3, 0, 8);
    poles(4) = gp_Pnt(6, 0, 12);
    return BRepBuilderAPI_MakeEdge(new Geom_BezierCurve(poles)).Shape();
}

/// The kernel numbers instances through all files that a process writes, and breaks lines as they come out
/// long. Here the statements are the same each time.
std::string settled(const std::string& file) {
    constexpr std::string_view kInstance = "NEXT_ASSEMBLY_USAGE_OCCURRENCE('";
    StepText step = takenApart(file);
    for (std::string& statement : step.statements) {
        std::erase(statement, '\n');
        const std::size_t at = statement.find(kInstance);
        if (at != std::string::npos) {
            const std::size_t number = at + kInstance.size();
            statement.erase(number, statement.find('\'', number) - number);
        }
    }
    return step.bytes();
}

/// Every file below a folder, `first` before the others.
SourceModel modelIn(const TemporaryFolder& folder, const std::string& first) {
    SourceModel model{{{first, settled(readFile(folder / first))}}};
    for (const std::string& name : folder.names()) {
        if (name != first) {
            model.files.push_back({name, settled(readFile(folder / name))});
        }
    }
    return model;
}

/// Swept, revolved and spline faces under a sub-assembly that is used twice. One colour in a file: of several
/// the kernel's writer makes a different file each time.
SourceModel curvedAssembly() {
    const StepMaker maker;
    const TDF_Label root = maker.assembly(u"Root");
    const TDF_Label pair = maker.assembly(u"Pair");
    const TDF_Label vase =
        maker.part(u"Vase", BRepPrimAPI_MakeRevol(curvedEdge(), gp_Ax1(gp_Pnt(), gp::DZ())).Shape());
    const TDF_Label sheet =
        maker.part(u"Sheet", BRepPrimAPI_MakePrism(curvedEdge(), gp_Vec(0, 7, 0)).Shape());
    const TDF_Label spline =
        maker.part(u"Spline", BRepBuilderAPI_NurbsConvert(BRepPrimAPI_MakeCone(4, 2, 5).Shape()).Shape());
    maker.place(pair, vase, u"vase", moved(1));
    maker.place(pair, spline, u"spline", moved(20));
    maker.place(root, pair, u"left", moved(0, 30));
    const TDF_Label right = maker.place(root, pair, u"right", moved(0, 60));
    maker.place(root, sheet, u"sheet", moved(40));
    maker.paint(right, 10, 200, 10);
    const TemporaryFolder folder;
    maker.save(folder / "curved.step");
    return modelIn(folder, "curved.step");
}

SourceModel roundParts() {
    const StepMaker maker;
    const TDF_Label part = maker.part(
        u"Round", compoundOf({BRepPrimAPI_MakeSphere(4).Shape(), BRepPrimAPI_MakeTorus(9, 2).Shape(),
                              BRepPrimAPI_MakeCylinder(3, 5).Shape(), box(1, 2, 3)}));
    maker.paint(part, 200, 40, 40, 0.5F);
    const TemporaryFolder folder;
    maker.save(folder / "round.step", "INCH");
    return modelIn(folder, "round.step");
}

SourceModel referringFiles() {
    const StepMaker maker;
    const TDF_Label root = maker.assembly(u"Root");
    maker.place(root, maker.part(u"Rod", BRepPrimAPI_MakeCylinder(2, 9).Shape()), u"rod", moved(3));
    const TDF_Label cube = maker.part(u"Cube", box(2, 2, 2));
    maker.place(root, cube, u"one", moved(10));
    maker.place(root, cube, u"two", moved(20));
    const TemporaryFolder folder;
    maker.save(folder / "root.step", "MM", "part_");
    return modelIn(folder, "root.step");
}

} // namespace

std::vector<SourceModel> makeSourceModels() {
    const std::string example = sourceFolder() + "/examples/step/pulley_block.step";
    return {curvedAssembly(), roundParts(), referringFiles(), {{{"pulley_block.step", readFile(example)}}}};
}

} // namespace orvane::step_damage
