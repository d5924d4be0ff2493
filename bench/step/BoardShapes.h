#pragma once

#include <Quantity_ColorRGBA.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Ax2.hxx>
#include <gp_Trsf.hxx>

#include <functional>
#include <string>
#include <vector>

/// The making of boundary representations for `make_board`. Lengths are millimetres, angles degrees.
namespace orvane::board {

/// A corner of an outline, rounded where `radius` is above zero.
struct Corner {
    double u = 0;
    double v = 0;
    double radius = 0;
};

using Outline = std::vector<Corner>;

/// A solid of a part. The first `painted` of its faces have a colour of their own.
struct BoardBody {
    TopoDS_Shape shape;
    Quantity_ColorRGBA color = {};
    int painted = 0;
    Quantity_ColorRGBA paint = {};
};

/// What one product of the file is made of; it stands on z = 0.
struct BoardPart {
    std::string name;
    std::vector<BoardBody> bodies;
};

/// From 0 to 255, as a picture has them.
Quantity_ColorRGBA color(int red, int green, int blue);

gp_Trsf shift(double x, double y, double z);
/// About the z axis.
gp_Trsf spin(double degrees);
/// About an axis through the origin.
gp_Trsf spin(const gp_Dir& axis, double degrees);

/// A copy that shares nothing with `shape`, as a file has it that lists each pin by itself.
TopoDS_Shape copyOf(const TopoDS_Shape& shape, const gp_Trsf& transform);

/// A plane face: u runs along the frame's x, v along its y.
TopoDS_Face outlined(const gp_Ax2& frame, const Outline& outline, const std::vector<Outline>& holes = {});

Outline rectangle(double width, double depth, double radius);
Outline polygon(int corners, double acrossFlats, double radius);
/// As good as a circle: lines of no length between its arcs are left out.
Outline circle(double x, double y, double radius);

/// An outline in the plane of x and y, from `bottom` upwards.
TopoDS_Shape upright(const Outline& outline, double bottom, double height,
                     const std::vector<Outline>& holes = {});
/// An outline in the plane of x and z, which `depth` extends along y, half of it to either side.
TopoDS_Shape across(const Outline& outline, double depth);
/// An outline in the plane of x (the radius) and z, turned about the z axis.
TopoDS_Shape turned(const Outline& outline);

using EdgeChoice = std::function<bool(const TopoDS_Edge&)>;
bool isVertical(const TopoDS_Edge& edge);
/// Edges of which a fillet cannot be made stay sharp.
TopoDS_Shape filleted(const TopoDS_Shape& shape, double radius, const EdgeChoice& choice = {});

/// Stands on `bottom`, centred on the z axis; all twelve edges are round.
TopoDS_Shape softBox(double width, double depth, double bottom, double height, double radius);

/// Round wire through points: a B-spline surface with flat ends.
TopoDS_Shape wireThrough(const std::vector<gp_Pnt>& points, double radius);

/// A solid through closed smooth curves, each given by points: B-spline surfaces with flat ends.
TopoDS_Shape loftThrough(const std::vector<std::vector<gp_Pnt>>& sections);

} // namespace orvane::board
