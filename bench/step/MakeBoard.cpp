// Writes a STEP file of a printed circuit board, of the size and the kind that electronics engineers hand on:
// more than fifty different parts, some 800 instances of them on both sides and in assemblies, colours of
// bodies, faces and instances, and every kind of surface that such parts have. Lengths are millimetres.
//   setarch -R build/bench/bench/step/make_board OUT.step
// Without `setarch -R` the order of the colours in the file is another with each run.
#include "BoardLayout.h"
#include "BoardParts.h"

#include <iostream>
#include <map>

namespace orvane::board {

namespace {

constexpr double kWidth = 440;
constexpr double kDepth = 380;
constexpr double kThickness = 1.6;

/// Parts by name. A map keeps its elements where they are.
using Catalog = std::map<std::string, Product>;

std::vector<BoardPart> makeSmallParts() {
    return {makeResistor("R0402", 1, 0.5),
            makeResistor("R0603", 1.6, 0.8),
            makeResistor("R0805", 2, 1.25),
            makeResistor("R2512", 6.3, 3.2),
            makeCeramicCapacitor("C0402", 1, 0.5),
            makeCeramicCapacitor("C0603", 1.6, 0.8),
            makeCeramicCapacitor("C0805", 2, 1.25),
            makeCeramicCapacitor("C1210", 3.2, 2.5),
            makeLamp("LED Red", 1.6, color(220, 40, 30)),
            makeLamp("LED Green", 2.2, color(50, 200, 70)),
            makeCrystal("Crystal 25 MHz", 11),
            makeCrystal("Crystal 32 kHz", 6),
            makeCanCapacitor("Can 47 uF", 6.3, 7.7),
            makeCanCapacitor("Can 220 uF", 8, 10),
            makeCanCapacitor("Can 470 uF", 10, 12),
            makeCanCapacitor("Can 2200 uF", 16, 21),
            makeDrumCoil("Drum 10 uH", 6, 5),
            makeDrumCoil("Drum 33 uH", 9, 7),
            makeRingCoil("Ring 100 uH", 14, 24),
            makeRingCoil("Ring 1 mH", 22, 40)};
}

std::vector<BoardPart> makeChips() {
    return {makeDualChip("SOT23", 3, 0.95, 1.3), makeDualChip("SOT23-6", 6, 0.95, 1.6),
            makeDualChip("SO8", 8, 1.27, 3.9),   makeDualChip("SO14", 14, 1.27, 3.9),
            makeDualChip("SO20", 20, 1.27, 7.5), makeDualChip("TSSOP28", 28, 0.65, 4.4),
            makeDualChip("TSOP56", 56, 0.5, 12), makeQuadChip("QFP48", 48, 0.5),
            makeQuadChip("QFP100", 100, 0.5),    makeBallChip("BGA256", 16, 1),
            makeBallChip("BGA484", 22, 1),       makePowerTransistor("TO220", 1),
            makePowerTransistor("DPAK", 0.6)};
}

std::vector<BoardPart> makeConnectors() {
    return {makePinHeader("Header 1x6", 6, 1),   makePinHeader("Header 2x5", 5, 2),
            makePinHeader("Header 2x20", 20, 2), makeShellPlug("Shell Plug 9", 9),
            makeShellPlug("Shell Plug 25", 25),  makeShellPlug("Shell Plug 37", 37),
            makeTerminalBlock("Terminals 3", 3), makeTerminalBlock("Terminals 8", 8),
            makeCable("Flat Cable 10", 10, 60),  makeCable("Flat Cable 20", 20, 90)};
}

std::vector<BoardPart> makeHardware() {
    return {makeScrew("Screw M2.5x8", 2.5, 8),
            makeScrew("Screw M3x10", 3, 10),
            makeScrew("Screw M4x16", 4, 16),
            makeWasher("Washer M3", 3),
            makeWasher("Washer M4", 4),
            makeStandoff("Standoff M3x8", 3, 8),
            makeStandoff("Standoff M4x12", 4, 12),
            makeFinSink("Heat Sink 12", 12, 30, 25),
            makeFinSink("Heat Sink 20", 20, 50, 18),
            makePinSink("Pin Heat Sink 8", 8),
            makePinSink("Pin Heat Sink 14", 14),
            makeFan("Fan 40", 40, 9),
            makeBoard("Bare Board", kWidth, kDepth, 12, 8)};
}

/// A screw that points downwards, its washer, and the standoff below.
Product makeFastener(BoardDocument& document, Catalog& catalog, const std::string& size) {
    Product fastener = document.assembly("Fastener " + size);
    const bool isSmall = size == "M3";
    document.place(fastener, catalog.at(isSmall ? "Standoff M3x8" : "Standoff M4x12"), gp_Trsf());
    document.place(fastener, catalog.at("Washer " + size), shift(0, 0, isSmall ? 8 : 12));
    document.place(fastener, catalog.at(isSmall ? "Screw M3x10" : "Screw M4x16"),
                   shift(0, 0, isSmall ? 8.5 : 12.5));
    return fastener;
}

Product makeChannel(BoardDocument& document, Catalog& catalog) {
    Product channel = document.assembly("Amplifier Channel");
    BoardLayout layout(document, channel, 13, 20, 1);
    layout.place(catalog.at("SO8"));
    layout.place(catalog.at("SOT23"));
    layout.place(catalog.at("R0603"), 4);
    layout.place(catalog.at("C0603"), 4);
    layout.place(catalog.at("Can 47 uF"));
    return channel;
}

Product makePowerStage(BoardDocument& document, Catalog& catalog, Product& fastener) {
    Product stage = document.assembly("Power Stage");
    const gp_Trsf upright = spin(gp::DX(), 90);
    document.place(stage, catalog.at("Heat Sink 12"), shift(0, 0, 15) * upright);
    document.place(stage, catalog.at("TO220"), shift(0, -0.1, 12) * spin(180) * spin(gp::DX(), -90));
    document.place(stage, fastener, shift(26, -12, 0));
    BoardLayout layout(document, stage, 36, 24, 1);
    layout.place(catalog.at("R2512"), 2);
    return stage;
}

Product makeCooledChip(BoardDocument& document, Catalog& catalog, const std::string& chip,
                       const std::string& sink, double height) {
    Product cooled = document.assembly("Cooled " + chip);
    document.place(cooled, catalog.at(chip), gp_Trsf());
    document.place(cooled, catalog.at(sink), shift(0, 0, height));
    return cooled;
}

Product makeFanUnit(BoardDocument& document, Catalog& catalog) {
    Product unit = document.assembly("Fan Unit");
    document.place(unit, catalog.at("Fan 40"), gp_Trsf());
    for (const double x : {-16.8, 16.8}) {
        for (const double y : {-16.8, 16.8}) {
            document.place(unit, catalog.at("Screw M2.5x8"), shift(x, y, 10));
        }
    }
    return unit;
}

void fillTop(BoardDocument& document, Catalog& catalog, Product& board) {
    Product smallFastener = makeFastener(document, catalog, "M3");
    Product largeFastener = makeFastener(document, catalog, "M4");
    Product channel = makeChannel(document, catalog);
    Product stage = makePowerStage(document, catalog, smallFastener);
    Product processor = makeCooledChip(document, catalog, "BGA484", "Pin Heat Sink 8", 1.6);
    Product bridge = makeCooledChip(document, catalog, "BGA256", "Heat Sink 20", 1.6);
    Product fan = makeFanUnit(document, catalog);
    BoardLayout layout(document, board, kWidth - 10, kDepth - 10, 2);
    layout.place(largeFastener, 4);
    layout.place(fan, 3);
    layout.place(bridge, 2);
    layout.place(catalog.at("Pin Heat Sink 14"), 1);
    layout.place(stage, 6);
    layout.place(processor, 2);
    layout.place(channel, 20);
    for (const auto& [name, count] : std::initializer_list<std::pair<const char*, int>>{
             {"Flat Cable 20", 1}, {"Flat Cable 10", 2}, {"Header 2x20", 3},    {"Shell Plug 37", 2},
             {"Shell Plug 25", 2}, {"Shell Plug 9", 4},  {"Terminals 8", 2},    {"Terminals 3", 4},
             {"Ring 1 mH", 2},     {"QFP100", 2},        {"TSOP56", 4},         {"Can 2200 uF", 6},
             {"Ring 100 uH", 4},   {"SO20", 8},          {"Can 470 uF", 10},    {"Can 220 uF", 10},
             {"TSSOP28", 6},       {"QFP48", 3},         {"Drum 33 uH", 6},     {"Drum 10 uH", 10},
             {"Header 2x5", 6},    {"Header 1x6", 6},    {"Crystal 25 MHz", 2}, {"Crystal 32 kHz", 3},
             {"DPAK", 8},          {"SO14", 10},         {"SOT23-6", 12},       {"SOT23", 20},
             {"LED Red", 12},      {"LED Green", 8},     {"C1210", 20},         {"R2512", 10}}) {
        layout.place(catalog.at(name), count);
    }
    // One of the lamps has a colour of its own.
    document.paint(layout.place(catalog.at("LED Green")), color(240, 200, 40));
}

void fillUnderside(BoardDocument& document, Catalog& catalog, Product& board) {
    BoardLayout layout(document, board, 0.7 * kWidth, 0.5 * kDepth, 3);
    layout.setUpsideDown(-kThickness);
    for (const char* name : {"R0402", "R0603", "R0805", "C0402", "C0603", "C0805"}) {
        layout.place(catalog.at(name), 50);
    }
}

bool writeBoard(const std::string& file) {
    BoardDocument document;
    Catalog catalog;
    for (const auto& make : {makeSmallParts, makeChips, makeConnectors, makeHardware}) {
        for (const BoardPart& part : make()) {
            catalog.emplace(part.name, document.part(part));
        }
    }
    Product board = document.assembly("Control Board");
    document.place(board, catalog.at("Bare Board"), gp_Trsf());
    fillTop(document, catalog, board);
    fillUnderside(document, catalog, board);
    int distinctFaces = 0;
    for (const auto& [name, part] : catalog) {
        distinctFaces += BoardDocument::counts(part.label).faces;
    }
    const BoardDocument::Counts all = BoardDocument::counts(board.label);
    std::cout << catalog.size() << " parts of " << distinctFaces << " faces, " << all.leaves
              << " instances of " << all.faces << " faces\n";
    return document.write(file);
}

} // namespace

} // namespace orvane::board

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: make_board OUT.step\n";
        return 2;
    }
    if (!orvane::board::writeBoard(argv[1])) {
        std::cerr << "make_board: " << argv[1] << " cannot be written\n";
        return 1;
    }
    return 0;
}
