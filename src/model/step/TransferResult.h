#pragma once

#include <STEPCAFControl_Reader.hxx>
#include <TDF_Label.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Shape.hxx>
#include <TransferBRep.hxx>
#include <Transfer_Binder.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

namespace orvane::step {

inline TopoDS_Shape withoutLocation(const TopoDS_Shape& shape) {
    return shape.Located(TopLoc_Location());
}

/// What the transfer made of the file's entities.
class TransferResult {
public:
    /// `reader` outlives the object, and has transferred its file.
    explicit TransferResult(const STEPCAFControl_Reader& reader)
        : process_(reader.Reader().WS()->TransferReader()->TransientProcess()),
          labels_(reader.GetShapeLabelMap()) {}

    /// A null shape where there is no entity, or the transfer made nothing of it.
    TopoDS_Shape shapeOf(const Handle(Standard_Transient) & entity) const {
        if (entity.IsNull()) {
            return {};
        }
        const Handle(Transfer_Binder) binder = process_->Find(entity);
        return binder.IsNull() || !binder->HasResult() ? TopoDS_Shape()
                                                       : TransferBRep::ShapeResult(process_, binder);
    }

    /// The label of a product, by its shape at any location; a null label for another shape.
    TDF_Label labelOf(const TopoDS_Shape& shape) const {
        const TDF_Label* label = shape.IsNull() ? nullptr : labels_.Seek(withoutLocation(shape));
        return label == nullptr ? TDF_Label() : *label;
    }

private:
    Handle(Transfer_TransientProcess) process_;
    const XCAFDoc_DataMapOfShapeLabel& labels_;
};

} // namespace orvane::step
