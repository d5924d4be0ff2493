#include "BoardParts.h"

#include <BRepPrimAPI_MakeTorus.hxx>

#include <cmath>
#include <numbers>

namespace orvane::board {

namespace {

const Quantity_ColorRGBA kAluminium = color(196, 199, 204);
const Quantity_ColorRGBA kCopper = color(184, 108, 58);
const Quantity_ColorRGBA kFerrite = color(58, 56, 58);
const Quantity_ColorRGBA kGold = color(212, 175, 85);
const Quantity_ColorRGBA kNylon = color(28, 30, 34);

/// About the z axis, upwards.
std::vector<gp_Pnt> helix(double radius, double bottom, double pitch, int turns) {
    constexpr int kPointsPerTurn = 12;
    std::vector<gp_Pnt> points;
    for (int i = 0; i <= turns * kPointsPerTurn; ++i) {
        const double angle = 2 * std::numbers::pi * i / kPointsPerTurn;
        points.emplace_back(radius * std::cos(angle), radius * std::sin(angle),
                            bottom + pitch * i / kPointsPerTurn);
    }
    return points;
}

/// A round pin from `bottom` to `top` with a tip like a nose.
TopoDS_Shape roundPin(double radius, double bottom, double top) {
    return turned({{0, bottom},
                   {0.6 * radius, bottom},
                   {radius, bottom + radius, 0.3 * radius},
                   {radius, -0.2},
                   {1.5 * radius, 0, 0.1},
                   {1.5 * radius, 0.8, 0.1},
                   {radius, 1, 0.1},
                   {radius, top - radius, 0.5 * radius},
                   {0.35 * radius, top, 0.2 * radius},
                   {0, top}});
}

} // namespace

BoardPart makeCanCapacitor(const std::string& name, double diameter, double height) {
    const double radius = diameter / 2;
    const Outline can = {{0, 1.2},
                         {0.95 * radius, 1.2, 0.3},
                         {radius, 1.6, 0.2},
                         {radius, 2.2, 0.3},
                         {0.9 * radius, 2.6, 0.2},
                         {radius, 3.0, 0.3},
                         {radius, height, 0.08 * diameter},
                         {0.8 * radius, height, 0.1},
                         {0.76 * radius, height - 0.3, 0.1},
                         {0, height - 0.3}};
    BoardPart part = {name, {{turned(can), kAluminium, 2, color(40, 52, 92)}}};
    part.bodies.push_back(
        {filleted(upright(rectangle(diameter + 0.4, diameter + 0.4, 0), 0, 1.15), 0.25, isVertical), kNylon});
    for (const double side : {-1., 1.}) {
        const TopoDS_Shape foot = softBox(0.35 * diameter, 0.9, 0, 0.3, 0.08);
        part.bodies.push_back({copyOf(foot, shift(side * 0.5 * diameter, 0, 0)), kAluminium});
    }
    return part;
}

BoardPart makeDrumCoil(const std::string& name, double diameter, int turns) {
    const double radius = diameter / 2;
    const double wire = 0.05 * diameter;
    const double pitch = 2.1 * wire;
    const double flange = 0.1 * diameter;
    const double top = 2 * flange + pitch * (turns + 1.5);
    const Outline drum = {{0, 0},
                          {radius, 0, 0.3 * flange},
                          {radius, flange, 0.2 * flange},
                          {0.7 * radius, flange, 0.2},
                          {0.7 * radius, top - flange, 0.2},
                          {radius, top - flange, 0.2 * flange},
                          {radius, top, 0.3 * flange},
                          {0, top}};
    BoardPart part = {name, {{turned(drum), kFerrite}}};
    part.bodies.push_back(
        {wireThrough(helix(0.7 * radius + 1.1 * wire, flange + 1.2 * wire, pitch, turns), wire), kCopper});
    return part;
}

BoardPart makeRingCoil(const std::string& name, double diameter, int loops) {
    const double section = 0.15 * diameter;
    const double wire = 0.035 * diameter;
    const double height = section + 2 * wire;
    const gp_Ax2 lying(gp_Pnt(0, 0, height), gp::DZ());
    BoardPart part = {name, {{BRepPrimAPI_MakeTorus(lying, diameter / 2, section).Shape(), kFerrite}}};
    const TopoDS_Shape loop =
        BRepPrimAPI_MakeTorus(gp_Ax2(gp_Pnt(diameter / 2, 0, height), gp::DY()), section + wire, wire)
            .Shape();
    for (int i = 0; i < loops; ++i) {
        part.bodies.push_back({copyOf(loop, spin(330. * i / loops)), kCopper});
    }
    return part;
}

BoardPart makePinHeader(const std::string& name, int columns, int rows) {
    constexpr double kPitch = 2.54;
    BoardPart part = {name, {}};
    const TopoDS_Shape pin = softBox(0.64, 0.64, -3, 11.5, 0.12);
    const Outline octagon = {{-1.26, -0.8}, {-0.8, -1.26}, {0.8, -1.26}, {1.26, -0.8},
                             {1.26, 0.8},   {0.8, 1.26},   {-0.8, 1.26}, {-1.26, 0.8}};
    const TopoDS_Shape cell = upright(octagon, 0, 2.5, {rectangle(0.66, 0.66, 0)});
    for (int i = 0; i < columns * rows; ++i) {
        const double x = (i % columns - (columns - 1) / 2.) * kPitch;
        const double y = (i / columns - (rows - 1) / 2.) * kPitch;
        part.bodies.push_back({copyOf(cell, shift(x, y, 0)), kNylon});
        part.bodies.push_back({copyOf(pin, shift(x, y, 0)), kGold});
    }
    return part;
}

BoardPart makeShellPlug(const std::string& name, int pins) {
    constexpr double kPitch = 2.76;
    const int perRow = (pins + 1) / 2;
    const double width = perRow * kPitch + 5;
    BoardPart part = {name, {}};
    std::vector<Outline> holes;
    for (const double side : {-1., 1.}) {
        holes.push_back(circle(side * (width / 2 + 4), 0, 1.6));
    }
    part.bodies.push_back(
        {filleted(upright(rectangle(width + 14, 12.5, 1.5), 1, 1.2, holes), 0.2), kAluminium});
    const Outline outside = {
        {-width / 2, -4.2, 2}, {width / 2, -4.2, 2}, {width / 2 - 1, 4.2, 2}, {1 - width / 2, 4.2, 2}};
    Outline inside = outside;
    for (Corner& corner : inside) {
        corner = {corner.u * (1 - 0.8 / width), corner.v * 0.9, 1.7};
    }
    part.bodies.push_back({filleted(upright(outside, 2.2, 6, {inside}), 0.15), kAluminium});
    part.bodies.push_back({filleted(upright(inside, 0.2, 2.4), 0.3), kNylon});
    const TopoDS_Shape pin = roundPin(0.5, -3, 7);
    for (int i = 0; i < pins; ++i) {
        const bool isUpper = i >= perRow;
        const double x = ((isUpper ? i - perRow + 0.5 : i) - (perRow - 1) / 2.) * kPitch;
        part.bodies.push_back({copyOf(pin, shift(x, isUpper ? 1.42 : -1.42, 0)), kGold});
    }
    return part;
}

BoardPart makeEdgeSocket(const std::string& name, int contacts) {
    constexpr double kPitch = 1.0;
    const int perRow = contacts / 2;
    const double length = perRow * kPitch + 6;
    const Outline slot = rectangle(length - 4, 1.6, 0.3);
    BoardPart part = {name, {{filleted(upright(rectangle(length, 7, 0.5), 0.3, 8, {slot}), 0.25), kNylon}}};
    const Outline spring = {{0.2, 4.5, 0}, {1.6, 3.4, 0.5}, {1.2, 1.2, 0.6}, {2.6, 0, 0.5},   {4.6, 0, 0},
                            {4.6, 0.3, 0}, {2.8, 0.3, 0.5}, {1.6, 1.2, 0.5}, {2.0, 3.5, 0.7}, {0.4, 4.9, 0}};
    const TopoDS_Shape contact = filleted(across(spring, 0.5), 0.05);
    for (int i = 0; i < contacts; ++i) {
        const bool isLeft = i >= perRow;
        const double x = (i % perRow - (perRow - 1) / 2.) * kPitch;
        part.bodies.push_back(
            {copyOf(contact, shift(x, 0, 0) * spin(isLeft ? 90 : -90)), kGold, 1, kAluminium});
    }
    return part;
}

BoardPart makeTerminalBlock(const std::string& name, int poles) {
    constexpr double kPitch = 5.08;
    BoardPart part = {name, {}};
    const Outline side = {{-4, 0, 0}, {4, 0, 0}, {4, 6, 0.5}, {2, 10, 0.8}, {-2, 10, 0.8}, {-4, 7, 0.5}};
    const TopoDS_Shape cell = filleted(across(side, kPitch - 0.06), 0.2);
    const TopoDS_Shape head = turned({{0, 10}, {1.8, 10}, {1.8, 10.6, 0.3}, {0.9, 11, 0.2}, {0, 11}});
    const TopoDS_Shape pin = roundPin(0.5, -3.5, 2.5);
    for (int i = 0; i < poles; ++i) {
        const double y = (i - (poles - 1) / 2.) * kPitch;
        part.bodies.push_back({copyOf(cell, shift(0, y, 0)), color(44, 120, 66), 1, color(30, 90, 50)});
        part.bodies.push_back({copyOf(head, shift(0, y, 0)), kAluminium});
        part.bodies.push_back({copyOf(pin, shift(0, y, 0)), kAluminium});
    }
    return part;
}

} // namespace orvane::board
