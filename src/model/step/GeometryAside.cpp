#include "model/step/GeometryAside.h"

#include <StepGeom_CartesianPoint.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepShape_EdgeBasedWireframeModel.hxx>
#include <StepShape_FaceBasedSurfaceModel.hxx>
#include <StepShape_FaceSurface.hxx>
#include <StepShape_GeometricSet.hxx>
#include <StepShape_GeometricSetSelect.hxx>
#include <StepShape_HArray1OfGeometricSetSelect.hxx>
#include <StepShape_ManifoldSolidBrep.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>
#include <TCollection_HAsciiString.hxx>

#include <unordered_map>

namespace orvane::step {

namespace {

using Item = Handle(StepRepr_RepresentationItem);

/// Whether the kernel makes a shape of an item. Placements and mapped items stay: they are structure.
bool isGeometry(const Item& item) {
    return !item.IsNull() && (item->IsKind(STANDARD_TYPE(StepShape_ManifoldSolidBrep)) ||
                              item->IsKind(STANDARD_TYPE(StepShape_ShellBasedSurfaceModel)) ||
                              item->IsKind(STANDARD_TYPE(StepShape_GeometricSet)) ||
                              item->IsKind(STANDARD_TYPE(StepShape_EdgeBasedWireframeModel)) ||
                              item->IsKind(STANDARD_TYPE(StepShape_FaceBasedSurfaceModel)) ||
                              item->IsKind(STANDARD_TYPE(StepShape_FaceSurface)));
}

/// A set of one point, of which the kernel makes a compound of its own.
Handle(StepShape_GeometricSet) pointInstead() {
    const Handle(TCollection_HAsciiString) noName = new TCollection_HAsciiString("");
    const Handle(StepGeom_CartesianPoint) point = new StepGeom_CartesianPoint;
    point->Init3D(noName, 0, 0, 0);
    StepShape_GeometricSetSelect select;
    select.SetValue(point);
    const Handle(StepShape_HArray1OfGeometricSetSelect) elements =
        new StepShape_HArray1OfGeometricSetSelect(1, 1);
    elements->SetValue(1, select);
    const Handle(StepShape_GeometricSet) set = new StepShape_GeometricSet;
    set->Init(noName, elements);
    return set;
}

} // namespace

GeometryAside::GeometryAside(const Handle(Interface_InterfaceModel) & model) {
    // What two representations share stays shared.
    std::unordered_map<const Standard_Transient*, Item> points;
    for (Standard_Integer i = 1; i <= model->NbEntities(); ++i) {
        const auto shape = Handle(StepShape_ShapeRepresentation)::DownCast(model->Value(i));
        const Standard_Integer count = shape.IsNull() || shape->Items().IsNull() ? 0 : shape->NbItems();
        if (count == 0) {
            continue;
        }
        const Handle(StepRepr_HArray1OfRepresentationItem) items =
            new StepRepr_HArray1OfRepresentationItem(1, count);
        for (Standard_Integer j = 1; j <= count; ++j) {
            const Item item = shape->ItemsValue(j);
            Item& point = points[item.get()];
            if (point.IsNull()) {
                point = isGeometry(item) ? Item(pointInstead()) : item;
            }
            items->SetValue(j, point);
        }
        items_.emplace_back(shape, shape->Items());
        shape->SetItems(items);
    }
}

GeometryAside::~GeometryAside() {
    for (const auto& [shape, items] : items_) {
        shape->SetItems(items);
    }
}

} // namespace orvane::step
