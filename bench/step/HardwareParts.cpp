#include "BoardParts.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <TopExp_Explorer.hxx>

#include <cmath>
#include <numbers>

namespace orvane::board {

namespace {

const Quantity_ColorRGBA kSteel = color(178, 182, 188);
const Quantity_ColorRGBA kBrass = color(200, 165, 80);
const Quantity_ColorRGBA kBlack = color(30, 31, 34);

/// A section of a blade: a flat drop at `radius` from the axis, twisted against the plane of the wheel.
std::vector<gp_Pnt> bladeSection(double radius, double chord, double twist, double middle) {
    std::vector<gp_Pnt> points;
    constexpr int kPoints = 14;
    for (int i = 0; i < kPoints; ++i) {
        const double angle = 2 * std::numbers::pi * i / kPoints;
        const double along = chord / 2 * std::cos(angle);
        const double thick = chord * 0.06 * std::sin(angle) * (1.2 - 0.6 * std::cos(angle));
        const double turn = twist * std::numbers::pi / 180;
        points.emplace_back(radius, along * std::cos(turn) - thick * std::sin(turn),
                            middle + along * std::sin(turn) + thick * std::cos(turn));
    }
    return points;
}

} // namespace

BoardPart makeScrew(const std::string& name, double diameter, double length) {
    const double radius = diameter / 2;
    const double pitch = 0.18 * diameter;
    Outline outline = {{0, diameter}, {0, -length}, {0.6 * radius, -length, 0.1}};
    const int threads = static_cast<int>((length - 1.5 * pitch) / pitch);
    for (int i = 0; i < threads; ++i) {
        const double z = -length + pitch * (i + 1);
        outline.push_back({radius, z - pitch / 2, 0.1 * pitch});
        outline.push_back({0.84 * radius, z, 0.1 * pitch});
    }
    outline.push_back({0.84 * radius, 0, 0.1 * diameter});
    outline.push_back({0.9 * diameter, 0, 0.1});
    outline.push_back({0.9 * diameter, diameter, 0.15 * diameter});
    const TopoDS_Shape socket = upright(polygon(6, 0.8 * diameter, 0), 0.4 * diameter, diameter);
    const TopoDS_Shape cut = BRepAlgoAPI_Cut(turned(outline), socket).Shape();
    return {name, {{TopExp_Explorer(cut, TopAbs_SOLID).Current(), kSteel, 3, kBlack}}};
}

BoardPart makeWasher(const std::string& name, double diameter) {
    const double hole = 0.53 * diameter;
    const Outline outline = {{hole, 0, 0.05}, {diameter, 0, 0.15}, {diameter, 0.5, 0.1}, {hole, 0.5, 0.05}};
    return {name, {{turned(outline), kSteel}}};
}

BoardPart makeStandoff(const std::string& name, double diameter, double height) {
    const TopoDS_Shape body =
        upright(polygon(6, 1.9 * diameter, 0.2), 0, height, {circle(0, 0, diameter / 2)});
    return {name, {{filleted(body, 0.12), kBrass, 2, color(225, 195, 110)}}};
}

BoardPart makeFinSink(const std::string& name, int fins, double depth, double height) {
    constexpr double kPitch = 3.2;
    constexpr double kFin = 1.1;
    const double width = kPitch * (fins - 1) + kFin;
    Outline outline = {{-width / 2, 0, 0.4}, {width / 2, 0, 0.4}};
    for (int i = fins - 1; i >= 0; --i) {
        const double x = -width / 2 + kPitch * i;
        outline.push_back({x + kFin, height, 0.4});
        outline.push_back({x, height, 0.4});
        if (i > 0) {
            outline.push_back({x, 3, 0.8});
            outline.push_back({x - kPitch + kFin, 3, 0.8});
        }
    }
    return {name, {{filleted(across(outline, depth), 0.15), kBlack, fins, color(50, 52, 58)}}};
}

BoardPart makePinSink(const std::string& name, int side) {
    constexpr double kPitch = 3;
    const double width = side * kPitch;
    BoardPart part = {name, {{softBox(width, width, 0, 2.5, 0.4), color(60, 90, 140)}}};
    const TopoDS_Shape pin = turned({{0, 2.4}, {1.2, 2.4}, {1.05, 2.9, 0.15}, {0.7, 12, 0.4}, {0, 12}});
    for (int i = 0; i < side * side; ++i) {
        const double x = (i % side - (side - 1) / 2.) * kPitch;
        const double y = (i / side - (side - 1) / 2.) * kPitch;
        part.bodies.push_back({copyOf(pin, shift(x, y, 0)), color(60, 90, 140), 1, kSteel});
    }
    return part;
}

BoardPart makeFan(const std::string& name, double size, int blades) {
    std::vector<Outline> holes = {circle(0, 0, 0.47 * size)};
    for (const double x : {-0.42, 0.42}) {
        for (const double y : {-0.42, 0.42}) {
            holes.push_back(circle(x * size, y * size, 0.04 * size));
        }
    }
    BoardPart part = {name, {{upright(rectangle(size, size, 0.05 * size), 0, 10, holes), kBlack}}};
    const double hub = 0.18 * size;
    part.bodies.push_back({turned({{0, 1}, {hub, 1, 0.5}, {hub, 9, 1.5}, {0, 9}}), kBlack, 1, kSteel});
    const TopoDS_Shape blade = loftThrough({bladeSection(0.97 * hub, 0.16 * size, 38, 5),
                                            bladeSection(0.32 * size, 0.2 * size, 28, 5),
                                            bladeSection(0.45 * size, 0.23 * size, 20, 5)});
    for (int i = 0; i < blades; ++i) {
        part.bodies.push_back({copyOf(blade, spin(360. * i / blades)), color(70, 72, 78)});
    }
    return part;
}

BoardPart makeCable(const std::string& name, int wires, double length) {
    constexpr double kPitch = 1.27;
    BoardPart part = {name, {}};
    for (int i = 0; i < wires; ++i) {
        const double y = (i - (wires - 1) / 2.) * kPitch;
        const double bow = 0.2 * (i % 3);
        const std::vector<gp_Pnt> points = {{-length / 2, y, 1},         {-0.4 * length, y, 6 + bow},
                                            {-0.2 * length, y + bow, 9}, {0, y - bow, 6},
                                            {0.25 * length, y, 9 + bow}, {0.42 * length, y, 5},
                                            {length / 2, y, 1}};
        part.bodies.push_back(
            {wireThrough(points, 0.45), i == 0 ? color(190, 40, 40) : color(150, 152, 156)});
    }
    for (const double side : {-1., 1.}) {
        const TopoDS_Shape crimp = softBox(4, kPitch * (wires + 2), 0, 3, 0.3);
        part.bodies.push_back({copyOf(crimp, shift(side * length / 2, 0, 0)), kBlack});
    }
    return part;
}

BoardPart makeBoard(const std::string& name, double width, double depth, int columns, int rows) {
    std::vector<Outline> holes;
    for (int i = 0; i < columns * rows; ++i) {
        const double x = ((i % columns + 0.5) / columns - 0.5) * width;
        const double y = ((i / columns + 0.5) / rows - 0.5) * depth;
        holes.push_back(circle(x, y, 0.3 + 0.1 * (i % 4)));
    }
    return {name, {{upright(rectangle(width, depth, 5), -1.6, 1.6, holes), color(22, 92, 52)}}};
}

} // namespace orvane::board
