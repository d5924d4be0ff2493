#include "model/step/InstanceStyles.h"

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

#include <optional>

namespace orvane::step {

namespace {

using Usage = Handle(StepRepr_AssemblyComponentUsage);
using Path = std::vector<Handle(StepRepr_NextAssemblyUsageOccurrence)>;

std::optional<Quantity_ColorRGBA> colorOf(const STEPConstruct_Styles& styles,
                                          const Handle(StepVisual_StyledItem) & style) {
    Handle(StepVisual_Colour) surface;
    Handle(StepVisual_Colour) boundary;
    Handle(StepVisual_Colour) curve;
    Handle(StepVisual_Colour) rendering;
    double transparency = 0;
    bool isInstance = false;
    if (!styles.GetColors(style, surface, boundary, curve, rendering, transparency, isInstance) ||
        !isInstance) {
        return std::nullopt;
    }
    Quantity_Color color;
    if (!rendering.IsNull()) {
        STEPConstruct_Styles::DecodeColor(rendering, color);
        return Quantity_ColorRGBA(color, static_cast<float>(1 - transparency));
    }
    if (!surface.IsNull()) {
        STEPConstruct_Styles::DecodeColor(surface, color);
        return Quantity_ColorRGBA(color);
    }
    return std::nullopt;
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

} // namespace

std::vector<InstanceStyle> takeInstanceStyles(const Handle(XSControl_WorkSession) & session) {
    std::vector<InstanceStyle> taken;
    STEPConstruct_Styles styles(session);
    styles.LoadStyles();
    for (Standard_Integer i = 1; i <= styles.NbStyles(); ++i) {
        const Handle(StepVisual_StyledItem) style = styles.Style(i);
        const std::optional<Quantity_ColorRGBA> color =
            style.IsNull() ? std::nullopt : colorOf(styles, style);
        const Usage usage = color ? usageOf(style, session->Graph()) : Usage();
        if (!usage.IsNull()) {
            taken.push_back({pathOf(usage), *color});
            style->SetStyles(Handle(StepVisual_HArray1OfPresentationStyleAssignment)());
        }
    }
    return taken;
}

} // namespace orvane::step
