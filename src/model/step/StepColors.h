#pragma once

#include "model/records/ModelRecords.h"
#include "model/step/ShapeMesher.h"
#include "model/step/StepDocument.h"

#include <string>

/// Colours and visibility of a STEP file as appearances and flags.
namespace orvane::step {

/// Gives a part's document what the file says of its product, solids and faces.
void addPartLook(const StepDocument& step, const TDF_Label& product, const PartMesh& mesh,
                 ModelDocument& part);

/// Gives an assembly's document what the file says of one instance in it and of those below that one. Needs
/// the leaf names of all of them.
void addInstanceLook(const StepDocument& step, const TDF_Label& instance,
                     const LabelMap<std::u16string>& componentNames, ComponentRecord& component,
                     ModelDocument& assembly);

} // namespace orvane::step
