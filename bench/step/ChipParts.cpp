#include "BoardParts.h"

#include <BRepPrimAPI_MakeSphere.hxx>

#include <algorithm>

namespace orvane::board {

namespace {

const Quantity_ColorRGBA kTin = color(200, 202, 205);
const Quantity_ColorRGBA kPlastic = color(38, 38, 42);
const Quantity_ColorRGBA kPrint = color(235, 235, 230);

/// Starts inside the body at x = 0 and comes down to z = 0 at x = `reach`.
TopoDS_Shape bentPin(double reach, double height, double width) {
    const double thick = std::min(0.2, height / 4);
    const double knee = 0.35 * reach;
    const double heel = 0.5 * reach;
    const Outline side = {{0, height, 0},
                          {knee, height, 0.6 * thick},
                          {heel, 0, 1.6 * thick},
                          {reach, 0, 0},
                          {reach, thick, 0},
                          {heel + thick, thick, 0.6 * thick},
                          {knee + thick, height + thick, 1.6 * thick},
                          {0, height + thick, 0}};
    return filleted(across(side, width), 0.2 * thick);
}

/// A row of pins beyond x = `from`, turned about the middle.
void addPinRow(BoardPart& part, const TopoDS_Shape& pin, int count, double pitch, double from,
               double degrees) {
    for (int i = 0; i < count; ++i) {
        const double y = (i - (count - 1) / 2.) * pitch;
        part.bodies.push_back({copyOf(pin, spin(degrees) * shift(from, y, 0)), kTin});
    }
}

BoardBody chipBody(double width, double depth, double bottom, double height) {
    // Its top is printed and so has another colour than its sides.
    return {softBox(width, depth, bottom, height, 0.1 * height), kPlastic, 2, color(60, 60, 66)};
}

BoardBody dot(double x, double y, double top) {
    return {copyOf(turned({{0, 0}, {0.3, 0}, {0.3, 0.05, 0.02}, {0, 0.05}}), shift(x, y, top)), kPrint};
}

BoardPart makeEndedBlock(const std::string& name, double length, double width, double height,
                         const BoardBody& core) {
    BoardPart part = {name, {core}};
    const double end = length / 5;
    for (const double side : {-1., 1.}) {
        const TopoDS_Shape cap = softBox(end, width, 0, height, 0.12 * height);
        part.bodies.push_back({copyOf(cap, shift(side * (length - end) / 2, 0, 0)), kTin});
    }
    return part;
}

} // namespace

BoardPart makeResistor(const std::string& name, double length, double width) {
    const double height = 0.4 * width + 0.15;
    const TopoDS_Shape core = softBox(0.6 * length, 0.96 * width, 0.05, height - 0.08, 0.02);
    return makeEndedBlock(name, length, width, height, {core, color(235, 232, 225), 3, color(25, 25, 30)});
}

BoardPart makeCeramicCapacitor(const std::string& name, double length, double width) {
    const TopoDS_Shape core = softBox(0.6 * length, 0.95 * width, 0.04, 0.9 * width, 0.08 * width);
    return makeEndedBlock(name, length, width, width, {core, color(178, 140, 96)});
}

BoardPart makeLamp(const std::string& name, double size, const Quantity_ColorRGBA& look) {
    BoardPart part = makeEndedBlock(name, 1.6 * size, size, 0.3 * size,
                                    {softBox(1.2 * size, 0.9 * size, 0.01, 0.4 * size, 0.05 * size), kPrint});
    const double radius = 0.4 * size;
    const Outline dome = {{0, 0.41 * size},
                          {radius, 0.41 * size},
                          {radius, 0.41 * size + 1.2 * radius, 0.7 * radius},
                          {0, 0.41 * size + 1.2 * radius}};
    part.bodies.push_back({turned(dome), look});
    return part;
}

BoardPart makeDualChip(const std::string& name, int pins, double pitch, double width) {
    const int perSide = (pins + 1) / 2;
    const double depth = perSide * pitch + 0.6;
    BoardPart part = {name, {chipBody(width, depth, 0.15, 1.4)}};
    const TopoDS_Shape pin = bentPin(1.1, 0.75, 0.32 * pitch);
    addPinRow(part, pin, perSide, pitch, width / 2 - 0.05, 0);
    addPinRow(part, pin, pins - perSide, pitch, width / 2 - 0.05, 180);
    part.bodies.push_back(dot(-width / 2 + 0.7, depth / 2 - 0.7, 1.55));
    return part;
}

BoardPart makeQuadChip(const std::string& name, int pins, double pitch) {
    const double width = pins / 4 * pitch + 1.4;
    BoardPart part = {name, {chipBody(width, width, 0.1, 1.4)}};
    const TopoDS_Shape pin = bentPin(1.05, 0.7, 0.45 * pitch);
    for (const double degrees : {0., 90., 180., 270.}) {
        addPinRow(part, pin, pins / 4, pitch, width / 2 - 0.05, degrees);
    }
    part.bodies.push_back(dot(-width / 2 + 1.2, width / 2 - 1.2, 1.5));
    return part;
}

BoardPart makeBallChip(const std::string& name, int side, double pitch) {
    const double width = (side + 1) * pitch;
    const double ball = 0.3 * pitch;
    BoardPart part = {name, {chipBody(width, width, 1.6 * ball, 0.5)}};
    part.bodies.push_back(
        {softBox(0.6 * width, 0.6 * width, 1.6 * ball + 0.5, 0.6, 0.08), color(190, 190, 195)});
    const TopoDS_Shape one =
        BRepPrimAPI_MakeSphere(gp_Ax2(gp_Pnt(0, 0, 0.8 * ball), gp::DZ()), ball, -0.9, 0.9).Shape();
    for (int i = 0; i < side * side; ++i) {
        const double x = (i % side - (side - 1) / 2.) * pitch;
        const double y = (i / side - (side - 1) / 2.) * pitch;
        part.bodies.push_back({copyOf(one, shift(x, y, 0)), kTin});
    }
    part.bodies.push_back(dot(-width / 2 + 0.8, width / 2 - 0.8, 1.6 * ball + 0.5));
    return part;
}

BoardPart makePowerTransistor(const std::string& name, double scale) {
    const double width = 10 * scale;
    BoardPart part = {name, {}};
    const TopoDS_Shape tab =
        upright(rectangle(width, 15 * scale, 0.6), 0, 1.3, {circle(0, 5 * scale, 1.8 * scale)});
    part.bodies.push_back({tab, kTin});
    const TopoDS_Shape body = softBox(width, 9 * scale, 1.3, 3.2, 0.3);
    part.bodies.push_back({copyOf(body, shift(0, -3 * scale, 0)), kPlastic, 1, kPrint});
    const TopoDS_Shape leg = bentPin(7 * scale, 2.4, 0.9 * scale);
    for (const int i : {-1, 0, 1}) {
        part.bodies.push_back({copyOf(leg, shift(2.54 * scale * i, -7.2 * scale, 0) * spin(-90)), kTin});
    }
    return part;
}

BoardPart makeCrystal(const std::string& name, double length) {
    const double width = 0.42 * length;
    BoardPart part = {name, {}};
    const TopoDS_Shape can = upright(rectangle(length, width, 0.499 * width), 0.8, 0.32 * length);
    part.bodies.push_back({filleted(can, 0.2), kTin, 1, color(150, 150, 160)});
    part.bodies.push_back({upright(rectangle(1.08 * length, 1.15 * width, 0.56 * width), 0.2, 0.6), kTin});
    const TopoDS_Shape leg = turned({{0, -2.5}, {0.22, -2.5, 0.1}, {0.22, 0.2}, {0, 0.2}});
    for (const double side : {-1., 1.}) {
        part.bodies.push_back({copyOf(leg, shift(side * 0.22 * length, 0, 0)), kTin});
    }
    return part;
}

} // namespace orvane::board
