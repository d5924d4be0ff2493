#include "model/step/StepColors.h"

#include <Quantity_ColorRGBA.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopTools_ShapeMapHasher.hxx>

#include <algorithm>
#include <cmath>
#include <set>

namespace orvane::step {

namespace {

struct Look {
    std::uint32_t color = 0;
    double transparency = 0;
};

std::uint32_t toByte(double fraction) {
    return static_cast<std::uint32_t>(std::lround(std::clamp(fraction, 0., 1.) * 255));
}

/// The kernel keeps linear light; the file's numbers are what comes back as sRGB.
Look toLook(const Quantity_ColorRGBA& color) {
    double red = 0;
    double green = 0;
    double blue = 0;
    color.GetRGB().Values(red, green, blue, Quantity_TOC_sRGB);
    // The kernel's opacity is a float, which must not show as 0.649999976.
    const double transparency = std::round((1 - static_cast<double>(color.Alpha())) * 1e6) / 1e6;
    return Look{toByte(red) | toByte(green) << 8 | toByte(blue) << 16, transparency};
}

std::optional<Look> lookOf(const StepDocument& step, const TDF_Label& label) {
    Quantity_ColorRGBA color;
    if (!step.colors->GetColor(label, XCAFDoc_ColorSurf, color) &&
        !step.colors->GetColor(label, XCAFDoc_ColorGen, color)) {
        return std::nullopt;
    }
    return toLook(color);
}

/// One appearance for all entities of a kind that look alike, in the order in which the looks are first met.
void apply(const Look& look, const EntityRecord& entity, ModelDocument& document) {
    for (AppearanceRecord& appearance : document.appearances) {
        if (appearance.primaryColor == look.color && appearance.transparency == look.transparency &&
            appearance.appliedTo.front().kind == entity.kind) {
            appearance.appliedTo.push_back(entity);
            return;
        }
    }
    AppearanceRecord& appearance = document.appearances.emplace_back();
    appearance.primaryColor = look.color;
    appearance.transparency = look.transparency;
    appearance.hasAppliedTo = true;
    appearance.appliedTo.push_back(entity);
}

EntityRecord entityOf(std::size_t body) {
    EntityRecord entity;
    entity.kind = EntityKind::body;
    entity.body = static_cast<std::int32_t>(body);
    return entity;
}

EntityRecord entityOf(std::size_t body, std::size_t face) {
    EntityRecord entity = entityOf(body);
    entity.kind = EntityKind::face;
    entity.face = static_cast<std::int32_t>(face);
    return entity;
}

/// Finds the entities that a piece of a part's shape became.
class EntityFinder {
public:
    explicit EntityFinder(const PartMesh& mesh) {
        for (std::size_t body = 0; body < mesh.sources.size(); ++body) {
            const PartMesh::Source& source = mesh.sources[body];
            if (source.shape.ShapeType() == TopAbs_SOLID || source.shape.ShapeType() == TopAbs_SHELL) {
                bodies_.Bind(source.shape, body);
            }
            for (std::size_t face = 0; face < source.faces.size(); ++face) {
                if (!faces_.IsBound(source.faces[face])) {
                    faces_.Bind(source.faces[face], {});
                }
                faces_.ChangeFind(source.faces[face]).push_back(entityOf(body, face));
            }
        }
    }

    std::vector<EntityRecord> find(const TopoDS_Shape& piece) const {
        if (const std::size_t* body = bodies_.Seek(piece)) {
            return {entityOf(*body)};
        }
        std::vector<EntityRecord> found;
        for (TopExp_Explorer it(piece, TopAbs_SOLID); it.More(); it.Next()) {
            if (const std::size_t* body = bodies_.Seek(it.Current())) {
                found.push_back(entityOf(*body));
            }
        }
        for (TopExp_Explorer it(piece, TopAbs_FACE, TopAbs_SOLID); it.More(); it.Next()) {
            if (const std::vector<EntityRecord>* faces = faces_.Seek(it.Current())) {
                found.insert(found.end(), faces->begin(), faces->end());
            }
        }
        return found;
    }

private:
    NCollection_DataMap<TopoDS_Shape, std::size_t, TopTools_ShapeMapHasher> bodies_;
    NCollection_DataMap<TopoDS_Shape, std::vector<EntityRecord>, TopTools_ShapeMapHasher> faces_;
};

struct Piece {
    TDF_Label label;
    TopoDS_Shape shape; ///< where it lies in the part
};

/// The pieces of a part that may have a look of their own, the outer ones first: a part of several
/// representations is one label for each.
void collectPieces(const TDF_Label& label, const TopLoc_Location& location, std::vector<Piece>& pieces) {
    TDF_LabelSequence labels;
    XCAFDoc_ShapeTool::GetSubShapes(label, labels);
    for (const TDF_Label& piece : labels) {
        pieces.push_back({piece, XCAFDoc_ShapeTool::GetShape(piece).Moved(location)});
    }
    labels.Clear();
    XCAFDoc_ShapeTool::GetComponents(label, labels);
    for (const TDF_Label& component : labels) {
        TDF_Label referred;
        if (XCAFDoc_ShapeTool::GetReferredShape(component, referred)) {
            const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(component).Moved(location);
            pieces.push_back({component, shape});
            pieces.push_back({referred, shape});
            collectPieces(referred, shape.Location(), pieces);
        }
    }
}

} // namespace

void addPartLook(const StepDocument& step, const TDF_Label& product, const PartMesh& mesh,
                 ModelDocument& part) {
    if (const std::optional<Look> look = lookOf(step, product)) {
        apply(*look, EntityRecord(), part);
    }
    if (!step.colors->IsVisible(product)) {
        for (BodyRecord& body : part.bodies) {
            body.visible = false;
        }
    }
    std::vector<Piece> pieces;
    collectPieces(product, TopLoc_Location(), pieces);
    if (pieces.empty()) {
        return;
    }
    const EntityFinder finder(mesh);
    std::set<std::pair<std::int32_t, std::int32_t>> painted;
    for (const Piece& piece : pieces) {
        const std::optional<Look> look = lookOf(step, piece.label);
        const bool isVisible = step.colors->IsVisible(piece.label);
        if (!look && isVisible) {
            continue;
        }
        for (const EntityRecord& entity : finder.find(piece.shape)) {
            if (look && painted.emplace(entity.body, entity.face).second) {
                apply(*look, entity, part);
            }
            if (!isVisible && entity.kind == EntityKind::body) {
                part.bodies[static_cast<std::size_t>(entity.body)].visible = false;
            }
        }
    }
}

void addInstanceLook(const StepDocument& step, const TDF_Label& instance,
                     const LabelMap<std::u16string>& componentNames, ComponentRecord& component,
                     ModelDocument& assembly) {
    component.hidden = !step.colors->IsVisible(instance);
    EntityRecord entity;
    entity.kind = EntityKind::component;
    entity.component = component.name;
    if (const std::optional<Look> look = lookOf(step, instance)) {
        apply(*look, entity, assembly);
    }
    const std::vector<InstanceColor>* colors = step.instanceColors.Seek(instance);
    for (std::size_t i = 0; colors != nullptr && i < colors->size(); ++i) {
        entity.component.clear();
        for (const TDF_Label& link : (*colors)[i].path) {
            const std::u16string* name = componentNames.Seek(link);
            entity.component += entity.component.empty() ? u"" : u"/";
            entity.component += name == nullptr ? std::u16string() : *name;
        }
        apply(toLook((*colors)[i].color), entity, assembly);
    }
}

} // namespace orvane::step
