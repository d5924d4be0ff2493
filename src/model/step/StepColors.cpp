#include "model/step/StepColors.h"

#include "model/step/Looks.h"

#include <Quantity_ColorRGBA.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopTools_ShapeMapHasher.hxx>

#include <algorithm>
#include <cmath>
#include <set>

namespace orvane::step {

namespace {

std::uint32_t toByte(double fraction) {
    return static_cast<std::uint32_t>(std::lround(std::clamp(fraction, 0., 1.) * 255));
}

std::optional<Look> lookOf(const PartShape& shape, const TDF_Label& label) {
    const std::optional<Quantity_ColorRGBA> color = surfaceColorOf(shape.colors, label);
    return color ? std::optional(toLook(*color)) : std::nullopt;
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

// The kernel keeps linear light; the file's numbers are what comes back as sRGB.
Look toLook(const Quantity_ColorRGBA& color) {
    double red = 0;
    double green = 0;
    double blue = 0;
    color.GetRGB().Values(red, green, blue, Quantity_TOC_sRGB);
    // The kernel's opacity is a float, which must not show as 0.649999976.
    const double transparency = std::round((1 - static_cast<double>(color.Alpha())) * 1e6) / 1e6;
    return Look{toByte(red) | toByte(green) << 8 | toByte(blue) << 16, transparency};
}

std::optional<Quantity_ColorRGBA> surfaceColorOf(const Handle(XCAFDoc_ColorTool) & colors,
                                                 const TDF_Label& label) {
    Quantity_ColorRGBA color;
    if (!colors->GetColor(label, XCAFDoc_ColorSurf, color) &&
        !colors->GetColor(label, XCAFDoc_ColorGen, color)) {
        return std::nullopt;
    }
    return color;
}

void addPartLook(const PartShape& shape, const PartMesh& mesh, StepPart& part) {
    if (const std::optional<Look> look = lookOf(shape, shape.product)) {
        applyLook(*look, EntityRecord(), part.appearances);
    }
    if (!shape.colors->IsVisible(shape.product)) {
        for (BodyRecord& body : part.bodies) {
            body.visible = false;
        }
    }
    std::vector<Piece> pieces;
    collectPieces(shape.product, TopLoc_Location(), pieces);
    if (pieces.empty()) {
        return;
    }
    const EntityFinder finder(mesh);
    std::set<std::pair<std::int32_t, std::int32_t>> painted;
    for (const Piece& piece : pieces) {
        const std::optional<Look> look = lookOf(shape, piece.label);
        const bool isVisible = shape.colors->IsVisible(piece.label);
        if (!look && isVisible) {
            continue;
        }
        for (const EntityRecord& entity : finder.find(piece.shape)) {
            if (look && painted.emplace(entity.body, entity.face).second) {
                applyLook(*look, entity, part.appearances);
            }
            if (!isVisible && entity.kind == EntityKind::body) {
                part.bodies[static_cast<std::size_t>(entity.body)].visible = false;
            }
        }
    }
}

} // namespace orvane::step
