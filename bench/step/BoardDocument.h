#pragma once

#include "BoardShapes.h"

#include <Bnd_Box.hxx>
#include <TDF_Label.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <string>

namespace orvane::board {

/// A part or an assembly that can be placed, with the room that it takes.
struct Product {
    TDF_Label label = {};
    std::string name = {};
    Bnd_Box box = {};
    /// How often it has been placed; the instances are named after it.
    int placed = 0;
};

/// Products and instances with their names and colours, and the file that they go to.
class BoardDocument {
public:
    BoardDocument();

    Product part(const BoardPart& part);
    Product assembly(const std::string& name);
    TDF_Label place(Product& parent, Product& child, const gp_Trsf& transform);
    void paint(const TDF_Label& instance, const Quantity_ColorRGBA& look);

    /// Counts in the whole tree of a product, with what assemblies hold as often as these are placed.
    struct Counts {
        int leaves = 0;
        int faces = 0;
    };
    static Counts counts(const TDF_Label& product);

    /// False when Open CASCADE cannot write.
    bool write(const std::string& file);

private:
    Handle(TDocStd_Document) document_;
    Handle(XCAFDoc_ShapeTool) shapes_;
    Handle(XCAFDoc_ColorTool) colors_;
};

} // namespace orvane::board
