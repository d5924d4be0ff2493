#pragma once

#include "model/step/ParsedStepFile.h"

#include <NCollection_DataMap.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelMapHasher.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <filesystem>
#include <string>
#include <vector>

namespace orvane::step {

template <class Value>
using LabelMap = NCollection_DataMap<TDF_Label, Value, TDF_LabelMapHasher>;

/// A colour of one instance, or of one below it: the path leads from the outer instance to the painted one.
struct InstanceLabelColor {
    std::vector<TDF_Label> path;
    Quantity_ColorRGBA color;
};

/// The entity of a file that a product's shape is made from.
struct ShapeSource {
    Handle(Standard_Transient) entity;
    bool isRoot = false; ///< whether it stands at the top of the file: the kernel then applies its placement
};

/// The structure of a STEP file as the kernel reads it: labels for products and instances, with what the file
/// says of them. There is no geometry in it. Lengths are millimetres.
struct StepDocument {
    std::filesystem::path file; ///< absolute
    Handle(TDocStd_Document) document;
    Handle(XCAFDoc_ShapeTool) shapes;
    Handle(XCAFDoc_ColorTool) colors;
    TDF_LabelSequence roots;                ///< products that no other product of the file uses
    LabelMap<bool> assemblies;              ///< whether a product is made of others; else it is one part
    LabelMap<std::u16string> productNames;  ///< absent: nameless
    LabelMap<std::u16string> instanceNames; ///< absent: not named itself
    LabelMap<std::vector<InstanceLabelColor>> instanceColors; ///< by the first instance of the path
    LabelMap<std::filesystem::path>
        externalFiles;             ///< STEP files that hold the shape of a product without its own
    LabelMap<ShapeSource> sources; ///< of products that are no assemblies
};

/// Reads the structure of a parsed file. Warnings are added to the file's. Throws `ModelError` for a file
/// that holds no shape.
StepDocument readStructure(ParsedStepFile& parsed);

} // namespace orvane::step
