#pragma once

#include <NCollection_DataMap.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <STEPControl_Reader.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelMapHasher.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TopoDS_Shape.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::step {

template <class Value>
using LabelMap = NCollection_DataMap<TDF_Label, Value, TDF_LabelMapHasher>;

/// A colour of one instance, or of one below it: the path leads from the outer instance to the painted one.
struct InstanceColor {
    std::vector<TDF_Label> path;
    Quantity_ColorRGBA color;
};

/// One STEP file as the kernel reads it: labels for products and instances, with what the file says of them.
/// Lengths are millimetres.
struct StepDocument {
    std::filesystem::path file; ///< absolute
    Handle(TDocStd_Document) document;
    Handle(XCAFDoc_ShapeTool) shapes;
    Handle(XCAFDoc_ColorTool) colors;
    TDF_LabelSequence roots;                ///< products that no other product of the file uses
    LabelMap<bool> assemblies;              ///< whether a product is made of others; else it is one part
    LabelMap<std::u16string> productNames;  ///< absent: nameless
    LabelMap<std::u16string> instanceNames; ///< absent: not named itself
    LabelMap<std::vector<InstanceColor>> instanceColors; ///< by the first instance of the path
    LabelMap<std::filesystem::path>
        externalFiles; ///< STEP files that hold the shape of a product without its own
    NCollection_DataMap<TopoDS_Shape, std::u16string, TopTools_ShapeMapHasher>
        shapeNames; ///< shapes without location
};

/// Reads one STEP file, and not yet those that it refers to. Needs a `KernelSession`.
/// What the file loses on the way becomes `warnings`. Throws `ModelError` for a file that is none or holds no
/// shape.
StepDocument loadStepDocument(const std::filesystem::path& file, std::vector<std::string>& warnings);

} // namespace orvane::step
