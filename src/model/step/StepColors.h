#pragma once

#include "model/step/PartTransfer.h"
#include "model/step/ShapeMesher.h"
#include "model/step/StepRecords.h"

/// Colours and visibility of a STEP file as appearances and flags.
namespace orvane::step {

Look toLook(const Quantity_ColorRGBA& color);

/// The colour of a label's surfaces; nothing where it has none itself.
std::optional<Quantity_ColorRGBA> surfaceColorOf(const Handle(XCAFDoc_ColorTool) & colors,
                                                 const TDF_Label& label);

/// Gives a part, whose bodies are there, what the file says of its product, solids and faces.
void addPartLook(const PartShape& shape, const PartMesh& mesh, StepPart& part);

} // namespace orvane::step
