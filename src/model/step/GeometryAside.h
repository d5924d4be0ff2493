#pragma once

#include <Interface_InterfaceModel.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepShape_ShapeRepresentation.hxx>

#include <utility>
#include <vector>

namespace orvane::step {

/// Puts a point in the place of each solid, surface and curve of a parsed file, as long as it lives. What the
/// kernel makes of the file meanwhile has the file's structure (products, instances, locations, which shape
/// is shared by which products), and takes next to no time.
class GeometryAside {
public:
    explicit GeometryAside(const Handle(Interface_InterfaceModel) & model);
    GeometryAside(const GeometryAside&) = delete;
    GeometryAside& operator=(const GeometryAside&) = delete;
    ~GeometryAside();

private:
    std::vector<
        std::pair<Handle(StepShape_ShapeRepresentation), Handle(StepRepr_HArray1OfRepresentationItem)>>
        items_; ///< as they were
};

} // namespace orvane::step
