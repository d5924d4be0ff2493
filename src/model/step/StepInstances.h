#pragma once

#include "model/step/StepDocument.h"
#include "model/step/StepStyles.h"
#include "model/step/TransferResult.h"

#include <Interface_InterfaceModel.hxx>

#include <vector>

namespace orvane::step {

/// Reads the names of a file's instances, and hands each of the colours that were taken out of the file to
/// its instance. Needs the names of the products.
void readInstances(const std::vector<InstanceStyle>& styles, const Handle(Interface_InterfaceModel) & model,
                   const TransferResult& result, StepDocument& step);

} // namespace orvane::step
