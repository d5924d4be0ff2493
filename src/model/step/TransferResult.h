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

#include <vector>

namespace orvane::step {

inline TopoDS_Shape withoutLocation(const TopoDS_Shape& shape) {
    return shape.Located(TopLoc_Location());
}

/// What the transfer made of the file's entities.
class TransferResult {
public:
    /// `reader` outlives the object, and has transferred its file.
    explicit TransferResult(const STEPCAFControl_Reader& reader)
        : TransferResult(reader.Reader().WS()->TransferReader()->TransientProcess(), reader) {}

    /// Of a transfer into `process` whose shapes got their labels from `labels`.
    TransferResult(const Handle(Transfer_TransientProcess) & process, const STEPCAFControl_Reader& labels)
        : process_(process), labels_(labels.GetShapeLabelMap()) {}

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

    /// All entities that were transferred, in the order in which the kernel began them.
    std::vector<Handle(Standard_Transient)> entities() const {
        std::vector<Handle(Standard_Transient)> all;
        for (Standard_Integer i = 1; i <= process_->NbMapped(); ++i) {
            all.push_back(process_->Mapped(i));
        }
        return all;
    }

private:
    Handle(Transfer_TransientProcess) process_;
    const XCAFDoc_DataMapOfShapeLabel& labels_;
};

} // namespace orvane::step
