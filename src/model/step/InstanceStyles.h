#pragma once

#include <Quantity_ColorRGBA.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <XSControl_WorkSession.hxx>

#include <vector>

namespace orvane::step {

/// A colour that the file gives to one instance, or to one below it in the tree.
struct InstanceStyle {
    std::vector<Handle(StepRepr_NextAssemblyUsageOccurrence)>
        path; ///< from the outermost instance inwards, at least one
    Quantity_ColorRGBA color;
};

/// Takes the colours of instances out of a file that was parsed but not yet transferred: the kernel finds an
/// instance by its shape and location alone, and would paint a product, or an instance elsewhere, instead.
std::vector<InstanceStyle> takeInstanceStyles(const Handle(XSControl_WorkSession) & session);

} // namespace orvane::step
