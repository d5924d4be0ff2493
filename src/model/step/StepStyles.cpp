#include "model/step/StepStyles.h"

#include "model/step/NestingCheck.h"
#include "model/step/ProductShapes.h"

#include <Interface_Graph.hxx>
#include <STEPConstruct_Styles.hxx>
#include <StepRepr_CharacterizedDefinition.hxx>
#include <StepRepr_SpecifiedHigherUsageOccurrence.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <StepVisual_Colour.hxx>
#include <StepVisual_PresentationStyleByContext.hxx>
#include <StepVisual_StyleContextSelect.hxx>
#include <StepVisual_StyledItem.hxx>
#include <StepVisual_StyledItemTarget.hxx>
#include <TColStd_HSequenceOfTransient.hxx>

#include <unordered_set>

namespace orvane::step {

namespace {

using Usage = Handle(StepRepr_AssemblyComponentUsage);
using Path = std::vector<Handle(StepRepr_NextAssemblyUsageOccurrence)>;

/// The colours of one style.
struct StyleColors {
    std::optional<Quantity_ColorRGBA> surface;
    bool isAny = false; ///< of surfaces, edges or curves
    bool isInstance = false;
};

StyleColors colorsOf(const STEPConstruct_Styles& styles, const Handle(StepVisual_StyledItem) & style) {
    Handle(StepVisual_Colour) surface;
    Handle(StepVisual_Colour) boundary;
    Handle(StepVisual_Colour) curve;
    Handle(StepVisual_Colour) rendering;
    double transparency = 0;
    StyleColors colors;
    const bool isRead =
        styles.GetColors(style, surface, boundary, curve, rendering, transparency, colors.isInstance);
    colors.isAny =
        isRead && (!surface.IsNull() || !boundary.IsNull() || !curve.IsNull() || !rendering.IsNull());
    Quantity_Color color;
    if (isRead && !rendering.IsNull()) {
        STEPConstruct_Styles::DecodeColor(rendering, color);
        colors.surface.emplace(color, static_cast<float>(1 - transparency));
    } else if (isRead && !surface.IsNull()) {
        STEPConstruct_Styles::DecodeColor(surface, color);
        colors.surface.emplace(color);
    }
    return colors;
}

/// The use of a product whose shape is the context of a style.
Usage usageOf(const Handle(StepVisual_StyledItem) & style, const Interface_Graph& graph) {
    for (Standard_Integer i = 1; i <= style->NbStyles(); ++i) {
        const auto byContext = Handle(StepVisual_PresentationStyleByContext)::DownCast(style->StylesValue(i));
        if (byContext.IsNull()) {
            continue;
        }
        const auto shape =
            Handle(StepShape_ShapeRepresentation)::DownCast(byContext->StyleContext().Representation());
        if (shape.IsNull()) {
            continue;
        }
        for (const auto& productShape : productShapesOf(shape, graph)) {
            const auto usage = Usage::DownCast(productShape->Definition().ProductDefinitionRelationship());
            if (!usage.IsNull()) {
                return usage;
            }
        }
    }
    return {};
}

/// A higher usage names the one above and the last one; the one above may again be such. Trees deeper
/// than the loop goes are refused before.
Path pathOf(Usage usage) {
    Path reversed;
    while (!usage.IsNull() && reversed.size() < kDeepestNesting) {
        if (const auto higher = Handle(StepRepr_SpecifiedHigherUsageOccurrence)::DownCast(usage);
            !higher.IsNull()) {
            reversed.push_back(higher->NextUsage());
            usage = higher->UpperUsage();
        } else {
            reversed.push_back(Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(usage));
            usage.Nullify();
        }
    }
    return {reversed.rbegin(), reversed.rend()};
}

std::unordered_set<const Standard_Transient*> invisibleStyles(const STEPConstruct_Styles& styles) {
    Handle(TColStd_HSequenceOfTransient) listed = new TColStd_HSequenceOfTransient;
    styles.LoadInvisStyles(listed);
    std::unordered_set<const Standard_Transient*> invisible;
    for (const Handle(Standard_Transient) & style : *listed) {
        invisible.insert(style.get());
    }
    return invisible;
}

} // namespace

StepStyles takeStyles(const Handle(XSControl_WorkSession) & session) {
    StepStyles taken;
    STEPConstruct_Styles styles(session);
    styles.LoadStyles();
    const std::unordered_set<const Standard_Transient*> invisible = invisibleStyles(styles);
    for (Standard_Integer i = 1; i <= styles.NbStyles(); ++i) {
        const Handle(StepVisual_StyledItem) style = styles.Style(i);
        if (style.IsNull()) {
            continue;
        }
        const StyleColors colors = colorsOf(styles, style);
        const Usage usage = colors.isInstance ? usageOf(style, session->Graph()) : Usage();
        const bool isVisible = !invisible.contains(style.get());
        if (!usage.IsNull() && colors.surface) {
            taken.instances.push_back({pathOf(usage), *colors.surface});
            style->SetStyles(Handle(StepVisual_HArray1OfPresentationStyleAssignment)());
        } else if (usage.IsNull() && (colors.isAny || !isVisible)) {
            taken.byItem[style->ItemAP242().Value().get()].push_back(
                static_cast<std::uint32_t>(taken.items.size()));
            taken.items.push_back({colors.surface, isVisible});
        }
    }
    return taken;
}

} // namespace orvane::step
