#pragma once

#include "model/step/ParsedStepFile.h"
#include "model/step/StepDocument.h"

#include <NCollection_DataMap.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TopoDS_Shape.hxx>

#include <optional>
#include <string>
#include <vector>

namespace orvane::step {

/// What has to be made a part of.
struct PartJob {
    ShapeSource source;
    /// What the assemblies above it pass on to a product that says nothing of its own.
    std::optional<Quantity_ColorRGBA> inheritedSurface;
    bool isInheritedVisible = true;
    std::uint64_t faceCount = 0; ///< of its shells: a measure of the work
};

/// The shape of one product as the kernel makes it, in a document of its own.
struct PartShape {
    Handle(TDocStd_Document) document;
    Handle(XCAFDoc_ShapeTool) shapes;
    Handle(XCAFDoc_ColorTool) colors;
    TDF_Label product; ///< null where the file gave no shape
    NCollection_DataMap<TopoDS_Shape, std::u16string, TopTools_ShapeMapHasher>
        names;                       ///< of bodies, by shapes without location
    std::vector<std::string> losses; ///< solids and surfaces that gave no shape
};

/// Transfers one product of a parsed file, with its colours and names, as a transfer of the whole file would.
/// The kernel's reader transfers whole roots, and passes over all styles and entities of the file each time.
PartShape transferPart(const ParsedStepFile& parsed, const PartJob& job);

} // namespace orvane::step
