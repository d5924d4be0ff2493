#pragma once

#include <Quantity_ColorRGBA.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <XSControl_WorkSession.hxx>

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace orvane::step {

/// A colour that the file gives to one instance, or to one below it in the tree.
struct InstanceStyle {
    std::vector<Handle(StepRepr_NextAssemblyUsageOccurrence)>
        path; ///< from the outermost instance inwards, at least one
    Quantity_ColorRGBA color;
};

/// What the file says of how a solid, a shell, a face or the like looks.
struct ItemStyle {
    std::optional<Quantity_ColorRGBA> surface;
    bool isVisible = true;
};

/// The styles of a file. Later ones of an item come on top of earlier ones.
struct StepStyles {
    std::vector<InstanceStyle> instances;
    std::vector<ItemStyle> items;
    std::unordered_map<const Standard_Transient*, std::vector<std::uint32_t>>
        byItem; ///< positions in `items`
};

/// Reads the styles of a file that was parsed but not yet transferred, and takes those of instances out of
/// it: the kernel finds an instance by its shape and location alone, and would paint a product, or an
/// instance elsewhere, instead.
StepStyles takeStyles(const Handle(XSControl_WorkSession) & session);

} // namespace orvane::step
