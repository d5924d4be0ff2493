#include "model/step/FaceTriangles.h"

#include "model/step/Kernel.h"

#include <BRep_Tool.hxx>
#include <Geom_Surface.hxx>
#include <Poly_Triangulation.hxx>
#include <TopLoc_Location.hxx>
#include <gp_GTrsf2d.hxx>
#include <gp_Trsf.hxx>

#include <algorithm>
#include <array>
#include <utility>

namespace orvane::step {

namespace {

/// Where the derivatives of a surface are this close to parallel, or one is this short beside the other, the
/// point counts as singular: a cone's apex, a sphere's pole, the collapsed edge of a patch. Files give such
/// places to some ten digits, and beyond a cone's apex the normal points the other way.
constexpr double kSingular = 1e-6;

/// How far from a singular corner into its triangle the normal is taken, as a share of the way; and what is
/// singular there.
constexpr double kNudge = 1e-3;
constexpr double kSingularNudged = 1e-12;

std::optional<gp_Vec> normalAt(const Geom_Surface& surface, const gp_XY& parameters, double singular) {
    gp_Pnt point;
    gp_Vec alongU;
    gp_Vec alongV;
    surface.D1(parameters.X(), parameters.Y(), point, alongU, alongV);
    const gp_Vec normal = alongU.Crossed(alongV);
    const double longest = std::max(alongU.SquareMagnitude(), alongV.SquareMagnitude());
    if (!(normal.Magnitude() > singular * longest)) {
        return std::nullopt;
    }
    return normal.Normalized();
}

/// The nodes of a face's triangulation: points and normals where the face's location puts them, points in
/// metres.
class FaceNodes {
public:
    FaceNodes(const TopoDS_Face& face, const Handle(Poly_Triangulation) & mesh,
              const TopLoc_Location& location)
        : mesh_(mesh), surface_(BRep_Tool::Surface(face, surfaceLocation_)),
          meshTransform_(location.Transformation()),
          isFlipped_((face.Orientation() == TopAbs_REVERSED) != meshTransform_.IsNegative()),
          normalSign_(face.Orientation() == TopAbs_REVERSED ? -1 : 1) {
        hasParameters_ = mesh_->HasUVNodes() && !surface_.IsNull();
        if (hasParameters_) {
            gp_Trsf toMetres;
            toMetres.SetScaleFactor(kMetresPerMillimetre);
            parametersInMetres_ = surface_->ParametricTransformation(toMetres);
            normals_.resize(static_cast<std::size_t>(mesh_->NbNodes()));
            for (Standard_Integer node = 1; node <= mesh_->NbNodes(); ++node) {
                normals_[static_cast<std::size_t>(node - 1)] =
                    placedNormal(mesh_->UVNode(node).XY(), kSingular);
            }
        }
    }

    std::array<Standard_Integer, 3> triangle(Standard_Integer number) const {
        std::array<Standard_Integer, 3> nodes{};
        mesh_->Triangle(number).Get(nodes[0], nodes[1], nodes[2]);
        if (isFlipped_) {
            std::swap(nodes[1], nodes[2]);
        }
        return nodes;
    }

    gp_XYZ point(Standard_Integer node) const {
        return mesh_->Node(node).Transformed(meshTransform_).XYZ() * kMetresPerMillimetre;
    }

    /// The surface's own normal at a corner of a triangle; nothing where the surface has none there.
    std::optional<gp_Vec> normal(Standard_Integer node,
                                 const std::array<Standard_Integer, 3>& triangle) const {
        if (!hasParameters_) {
            return std::nullopt;
        }
        if (const auto& normal = normals_[static_cast<std::size_t>(node - 1)]; normal) {
            return normal;
        }
        // All triangles around an apex share one node, so that one of its parameters says nothing: the one
        // along which the surface does not move there. It is taken from the other corners.
        const gp_XY corner = mesh_->UVNode(node).XY();
        gp_XY others;
        int count = 0;
        for (const Standard_Integer other : triangle) {
            if (normals_[static_cast<std::size_t>(other - 1)]) {
                others += mesh_->UVNode(other).XY();
                ++count;
            }
        }
        if (count == 0) {
            return std::nullopt;
        }
        others /= count;
        gp_Pnt point;
        gp_Vec alongU;
        gp_Vec alongV;
        surface_->D1(corner.X(), corner.Y(), point, alongU, alongV);
        gp_XY nearby = corner + (others - corner) * kNudge;
        if (alongU.SquareMagnitude() < alongV.SquareMagnitude()) {
            nearby.SetX(others.X());
        } else {
            nearby.SetY(others.Y());
        }
        return placedNormal(nearby, kSingularNudged);
    }

    gp_XY textureCoordinates(Standard_Integer node) const {
        return hasParameters_ ? parametersInMetres_.Transformed(mesh_->UVNode(node).XY()) : gp_XY();
    }

private:
    std::optional<gp_Vec> placedNormal(const gp_XY& parameters, double singular) const {
        std::optional<gp_Vec> normal = normalAt(*surface_, parameters, singular);
        if (normal) {
            // A scaled location must not scale the normal.
            normal = normal->Transformed(surfaceLocation_.Transformation()).Normalized() * normalSign_;
        }
        return normal;
    }

    Handle(Poly_Triangulation) mesh_;
    TopLoc_Location surfaceLocation_;
    Handle(Geom_Surface) surface_;
    gp_Trsf meshTransform_;
    bool isFlipped_;
    double normalSign_;
    bool hasParameters_ = false;
    gp_GTrsf2d parametersInMetres_;
    std::vector<std::optional<gp_Vec>> normals_;
};

void append(std::vector<float>& out, const gp_XYZ& value) {
    out.insert(out.end(),
               {static_cast<float>(value.X()), static_cast<float>(value.Y()), static_cast<float>(value.Z())});
}

} // namespace

std::optional<FaceTriangles> readFaceTriangles(const TopoDS_Face& face) {
    TopLoc_Location location;
    const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(face, location);
    if (mesh.IsNull() || mesh->NbTriangles() == 0) {
        return std::nullopt;
    }
    FaceTriangles out;
    const auto count = static_cast<std::size_t>(mesh->NbTriangles());
    out.record.positions.reserve(9 * count);
    out.record.normals.reserve(9 * count);
    out.record.texCoords.reserve(6 * count);
    const FaceNodes nodes(face, mesh, location);
    for (Standard_Integer number = 1; number <= mesh->NbTriangles(); ++number) {
        const std::array<Standard_Integer, 3> corners = nodes.triangle(number);
        const std::array<gp_XYZ, 3> points = {nodes.point(corners[0]), nodes.point(corners[1]),
                                              nodes.point(corners[2])};
        gp_XYZ plane = (points[1] - points[0]).Crossed(points[2] - points[0]);
        // Around a pole some triangles have two corners in one point, and cover nothing.
        if (plane.Modulus() == 0) {
            continue;
        }
        plane.Normalize();
        out.volume += points[0].Dot(points[1].Crossed(points[2]));
        for (std::size_t i = 0; i < 3; ++i) {
            append(out.record.positions, points[i]);
            const std::optional<gp_Vec> normal = nodes.normal(corners[i], corners);
            append(out.record.normals, normal ? normal->XYZ() : plane);
            const gp_XY texture = nodes.textureCoordinates(corners[i]);
            out.record.texCoords.push_back(static_cast<float>(texture.X()));
            out.record.texCoords.push_back(static_cast<float>(texture.Y()));
        }
    }
    return out;
}

void turnOver(FaceRecord& face) {
    for (std::size_t corner = 0; corner + 9 <= face.positions.size(); corner += 9) {
        for (std::vector<float>* numbers : {&face.positions, &face.normals}) {
            const auto second = numbers->begin() + static_cast<std::ptrdiff_t>(corner + 3);
            std::swap_ranges(second, second + 3, second + 3);
        }
        const auto second = face.texCoords.begin() + static_cast<std::ptrdiff_t>(corner / 3 * 2 + 2);
        std::swap_ranges(second, second + 2, second + 2);
    }
    for (float& number : face.normals) {
        number = -number;
    }
}

} // namespace orvane::step
