#include "model/step/TessellatedShapes.h"

#include <Standard_Version.hxx>
#include <StepData_UndefinedEntity.hxx>
#include <TCollection_HAsciiString.hxx>

#include <string_view>

namespace orvane::step {

std::string findUnreadTessellation(const Handle(Interface_InterfaceModel) & model) {
    for (Standard_Integer i = 1; i <= model->NbEntities(); ++i) {
        const auto unknown = Handle(StepData_UndefinedEntity)::DownCast(model->Value(i));
        const std::string_view type = unknown.IsNull() ? "" : unknown->StepType();
        if (type == "TESSELLATED_SOLID" || type == "TESSELLATED_SHELL") {
            return "tessellated geometry (" + std::string(model->StringLabel(unknown)->ToCString()) + ' ' +
                   std::string(type) +
                   "), which Open CASCADE " OCC_VERSION_COMPLETE
                   " does not read, expected exact solids, shells or faces";
        }
    }
    return {};
}

} // namespace orvane::step
