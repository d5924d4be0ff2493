#pragma once

#include "BoardShapes.h"

/// The parts of the board, each family in sizes. Lengths are millimetres; a part stands on z = 0.
namespace orvane::board {

/// A resistor: a block with two soldered ends and a marked top.
BoardPart makeResistor(const std::string& name, double length, double width);
BoardPart makeCeramicCapacitor(const std::string& name, double length, double width);
/// A light source with a dome.
BoardPart makeLamp(const std::string& name, double size, const Quantity_ColorRGBA& look);
/// A package with bent pins on two sides.
BoardPart makeDualChip(const std::string& name, int pins, double pitch, double width);
/// A package with bent pins on four sides.
BoardPart makeQuadChip(const std::string& name, int pins, double pitch);
/// A package on `side` x `side` balls.
BoardPart makeBallChip(const std::string& name, int side, double pitch);
/// A transistor with a tab to be screwed on; it lies on its back.
BoardPart makePowerTransistor(const std::string& name, double scale);
BoardPart makeCrystal(const std::string& name, double length);

BoardPart makeCanCapacitor(const std::string& name, double diameter, double height);
/// A drum with a winding, which is a B-spline surface.
BoardPart makeDrumCoil(const std::string& name, double diameter, int turns);
/// A ring with a winding of single loops.
BoardPart makeRingCoil(const std::string& name, double diameter, int loops);

/// Square pins through a housing of cells.
BoardPart makePinHeader(const std::string& name, int columns, int rows);
/// Round pins in a shell, in two rows.
BoardPart makeShellPlug(const std::string& name, int pins);
/// Two rows of bent contacts in a long housing.
BoardPart makeEdgeSocket(const std::string& name, int contacts);
BoardPart makeTerminalBlock(const std::string& name, int poles);

BoardPart makeScrew(const std::string& name, double diameter, double length);
BoardPart makeWasher(const std::string& name, double diameter);
BoardPart makeStandoff(const std::string& name, double diameter, double height);
/// Fins side by side.
BoardPart makeFinSink(const std::string& name, int fins, double depth, double height);
/// Round tapered pins.
BoardPart makePinSink(const std::string& name, int side);
/// A wheel of twisted blades in a frame.
BoardPart makeFan(const std::string& name, double size, int blades);
/// Wires side by side that bend from one end to the other.
BoardPart makeCable(const std::string& name, int wires, double length);
/// The board itself, whose top lies on z = 0, with a grid of holes.
BoardPart makeBoard(const std::string& name, double width, double depth, int columns, int rows);

} // namespace orvane::board
