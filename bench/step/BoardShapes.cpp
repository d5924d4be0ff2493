#include "BoardShapes.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <BRepFilletAPI_MakeFillet.hxx>
#include <BRepOffsetAPI_MakePipe.hxx>
#include <BRepOffsetAPI_ThruSections.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <BRep_Tool.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <GeomAPI_Interpolate.hxx>
#include <Geom_BSplineCurve.hxx>
#include <Geom_Circle.hxx>
#include <Geom_TrimmedCurve.hxx>
#include <Standard_Failure.hxx>
#include <TColgp_HArray1OfPnt.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <gp_Circ.hxx>
#include <gp_Pln.hxx>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orvane::board {

namespace {

constexpr double kRadiansPerDegree = std::numbers::pi / 180;

gp_Pnt pointIn(const gp_Ax2& frame, const gp_XY& at) {
    return gp_Pnt(frame.Location().XYZ() + frame.XDirection().XYZ() * at.X() +
                  frame.YDirection().XYZ() * at.Y());
}

/// Where the outline leaves one side, bends, and enters the next one.
struct Bend {
    gp_XY first;
    gp_XY middle;
    gp_XY last;
};

Bend bendAt(const Corner& before, const Corner& corner, const Corner& after) {
    const gp_XY at(corner.u, corner.v);
    if (corner.radius <= 0) {
        return {at, at, at};
    }
    const gp_XY back = (gp_XY(before.u, before.v) - at).Normalized();
    const gp_XY onward = (gp_XY(after.u, after.v) - at).Normalized();
    const double half = std::acos(std::clamp(back.Dot(onward), -1., 1.)) / 2;
    const double reach = corner.radius / std::tan(half);
    const gp_XY inward = (back + onward).Normalized();
    return {at + back * reach, at + inward * (corner.radius / std::sin(half) - corner.radius),
            at + onward * reach};
}

TopoDS_Wire wireOf(const gp_Ax2& frame, const Outline& outline) {
    const std::size_t count = outline.size();
    std::vector<Bend> bends;
    for (std::size_t i = 0; i < count; ++i) {
        bends.push_back(bendAt(outline[(i + count - 1) % count], outline[i], outline[(i + 1) % count]));
    }
    BRepBuilderAPI_MakeWire wire;
    for (std::size_t i = 0; i < count; ++i) {
        const gp_Pnt last = pointIn(frame, bends[i].last);
        const gp_Pnt next = pointIn(frame, bends[(i + 1) % count].first);
        if (outline[i].radius > 0) {
            wire.Add(BRepBuilderAPI_MakeEdge(
                GC_MakeArcOfCircle(pointIn(frame, bends[i].first), pointIn(frame, bends[i].middle), last)
                    .Value()));
        }
        if (last.Distance(next) > 1e-6) {
            wire.Add(BRepBuilderAPI_MakeEdge(last, next));
        }
    }
    return wire.Wire();
}

Handle(Geom_BSplineCurve) curveThrough(const std::vector<gp_Pnt>& points, bool isClosed) {
    const Handle(TColgp_HArray1OfPnt) array = new TColgp_HArray1OfPnt(1, static_cast<int>(points.size()));
    for (std::size_t i = 0; i < points.size(); ++i) {
        array->SetValue(static_cast<int>(i) + 1, points[i]);
    }
    GeomAPI_Interpolate interpolation(array, isClosed, 1e-6);
    interpolation.Perform();
    return interpolation.Curve();
}

} // namespace

Quantity_ColorRGBA color(int red, int green, int blue) {
    return Quantity_ColorRGBA(Quantity_Color(red / 255., green / 255., blue / 255., Quantity_TOC_sRGB), 1);
}

gp_Trsf shift(double x, double y, double z) {
    gp_Trsf transform;
    transform.SetTranslation(gp_Vec(x, y, z));
    return transform;
}

gp_Trsf spin(double degrees) {
    return spin(gp::DZ(), degrees);
}

gp_Trsf spin(const gp_Dir& axis, double degrees) {
    gp_Trsf transform;
    transform.SetRotation(gp_Ax1(gp_Pnt(), axis), degrees * kRadiansPerDegree);
    return transform;
}

TopoDS_Shape copyOf(const TopoDS_Shape& shape, const gp_Trsf& transform) {
    return BRepBuilderAPI_Transform(shape, transform, Standard_True).Shape();
}

TopoDS_Face outlined(const gp_Ax2& frame, const Outline& outline, const std::vector<Outline>& holes) {
    BRepBuilderAPI_MakeFace face(gp_Pln(gp_Ax3(frame)), wireOf(frame, outline));
    for (const Outline& hole : holes) {
        face.Add(TopoDS::Wire(wireOf(frame, hole).Reversed()));
    }
    return face.Face();
}

Outline rectangle(double width, double depth, double radius) {
    const double x = width / 2;
    const double y = depth / 2;
    return {{-x, -y, radius}, {x, -y, radius}, {x, y, radius}, {-x, y, radius}};
}

Outline polygon(int corners, double acrossFlats, double radius) {
    Outline outline;
    const double half = std::numbers::pi / corners;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * half * i;
        const double distance = acrossFlats / 2 / std::cos(half);
        outline.push_back({distance * std::cos(angle), distance * std::sin(angle), radius});
    }
    return outline;
}

Outline circle(double x, double y, double radius) {
    Outline outline = rectangle(2 * radius, 2 * radius, radius);
    for (Corner& corner : outline) {
        corner.u += x;
        corner.v += y;
    }
    return outline;
}

TopoDS_Shape upright(const Outline& outline, double bottom, double height,
                     const std::vector<Outline>& holes) {
    const gp_Ax2 frame(gp_Pnt(0, 0, bottom), gp::DZ(), gp::DX());
    return BRepPrimAPI_MakePrism(outlined(frame, outline, holes), gp_Vec(0, 0, height)).Shape();
}

TopoDS_Shape across(const Outline& outline, double depth) {
    const gp_Ax2 frame(gp_Pnt(0, depth / 2, 0), -gp::DY(), gp::DX());
    return BRepPrimAPI_MakePrism(outlined(frame, outline), gp_Vec(0, -depth, 0)).Shape();
}

TopoDS_Shape turned(const Outline& outline) {
    const gp_Ax2 frame(gp_Pnt(), -gp::DY(), gp::DX());
    return BRepPrimAPI_MakeRevol(outlined(frame, outline), gp_Ax1(gp_Pnt(), gp::DZ())).Shape();
}

bool isVertical(const TopoDS_Edge& edge) {
    double first = 0;
    double last = 0;
    const Handle(Geom_Curve) curve = BRep_Tool::Curve(edge, first, last);
    const gp_Vec along(curve->Value(first), curve->Value(last));
    return std::hypot(along.X(), along.Y()) < 1e-6;
}

TopoDS_Shape filleted(const TopoDS_Shape& shape, double radius, const EdgeChoice& choice) {
    BRepFilletAPI_MakeFillet fillet(shape);
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(shape, TopAbs_EDGE, edges);
    for (int i = 1; i <= edges.Extent(); ++i) {
        const TopoDS_Edge& edge = TopoDS::Edge(edges(i));
        if (!choice || choice(edge)) {
            fillet.Add(radius, edge);
        }
    }
    try {
        return fillet.Shape();
    } catch (const Standard_Failure&) {
        return shape;
    }
}

TopoDS_Shape softBox(double width, double depth, double bottom, double height, double radius) {
    return filleted(upright(rectangle(width, depth, 0), bottom, height), radius);
}

TopoDS_Shape wireThrough(const std::vector<gp_Pnt>& points, double radius) {
    const Handle(Geom_BSplineCurve) curve = curveThrough(points, false);
    gp_Pnt start;
    gp_Vec along;
    curve->D1(curve->FirstParameter(), start, along);
    const TopoDS_Wire spine = BRepBuilderAPI_MakeWire(BRepBuilderAPI_MakeEdge(curve));
    const TopoDS_Wire ring =
        BRepBuilderAPI_MakeWire(BRepBuilderAPI_MakeEdge(gp_Circ(gp_Ax2(start, along), radius)));
    return BRepOffsetAPI_MakePipe(spine, BRepBuilderAPI_MakeFace(ring).Face()).Shape();
}

TopoDS_Shape loftThrough(const std::vector<std::vector<gp_Pnt>>& sections) {
    BRepOffsetAPI_ThruSections loft(Standard_True);
    for (const std::vector<gp_Pnt>& points : sections) {
        loft.AddWire(BRepBuilderAPI_MakeWire(BRepBuilderAPI_MakeEdge(curveThrough(points, true))));
    }
    return loft.Shape();
}

} // namespace orvane::board
