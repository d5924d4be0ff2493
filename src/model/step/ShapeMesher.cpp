#include "model/step/ShapeMesher.h"

#include "model/step/FaceTriangles.h"
#include "model/step/Kernel.h"

#include <BRepBndLib.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <Bnd_Box.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <cmath>
#include <numbers>

namespace orvane::step {

namespace {

/// Millimetres. Keeps the mesher going where a part is no larger than a point.
constexpr double kSmallestDeflection = 1e-5;

/// What the mesher is asked for: millimetres and radians.
struct Fineness {
    double deflection;
    double angle;
    bool inParallel;
};

/// Millimetres. A face beyond that has no end, and no say in how fine the others are.
constexpr double kEndless = 1e9;

double linearDeflection(const TopoDS_Shape& shape, const MeshingOptions& options) {
    if (const auto* metres = std::get_if<Metres>(&options.deflection)) {
        return std::max(metres->value / kMetresPerMillimetre, kSmallestDeflection);
    }
    Bnd_Box box;
    for (TopExp_Explorer it(shape, TopAbs_FACE); it.More(); it.Next()) {
        Bnd_Box faceBox;
        BRepBndLib::Add(it.Current(), faceBox, Standard_False);
        if (!faceBox.IsVoid() && !faceBox.IsOpen() && faceBox.SquareExtent() < kEndless * kEndless) {
            box.Add(faceBox);
        }
    }
    const double diagonal = box.IsVoid() ? 0 : std::sqrt(box.SquareExtent());
    return std::max(diagonal * std::get<ShareOfBox>(options.deflection).value, kSmallestDeflection);
}

std::vector<TopoDS_Face> facesOf(const TopoDS_Shape& shape, TopAbs_ShapeEnum outside) {
    std::vector<TopoDS_Face> faces;
    for (TopExp_Explorer it(shape, TopAbs_FACE, outside); it.More(); it.Next()) {
        faces.push_back(TopoDS::Face(it.Current()));
    }
    return faces;
}

std::vector<PartMesh::Source> splitIntoBodies(const TopoDS_Shape& shape) {
    std::vector<PartMesh::Source> sources;
    const auto add = [&](const TopoDS_Shape& body, std::vector<TopoDS_Face> faces) {
        if (!faces.empty()) {
            sources.push_back({body, std::move(faces)});
        }
    };
    for (TopExp_Explorer it(shape, TopAbs_SOLID); it.More(); it.Next()) {
        add(it.Current(), facesOf(it.Current(), TopAbs_SHAPE));
    }
    for (TopExp_Explorer it(shape, TopAbs_SHELL, TopAbs_SOLID); it.More(); it.Next()) {
        add(it.Current(), facesOf(it.Current(), TopAbs_SHAPE));
    }
    add(shape, facesOf(shape, TopAbs_SHELL));
    return sources;
}

/// The result does not depend on how the work is shared among threads: each edge and each face is meshed by
/// itself.
bool runMesher(const TopoDS_Shape& shape, const Fineness& fineness) {
    try {
        BRepMesh_IncrementalMesh(shape, fineness.deflection, Standard_False, fineness.angle,
                                 fineness.inParallel);
        return true;
    } catch (const Standard_Failure&) {
        return false;
    }
}

/// Damaged radii and the like become points without end.
bool isFinite(const FaceRecord& face) {
    const auto isNumber = [](float number) { return std::isfinite(number); };
    return std::ranges::all_of(face.positions, isNumber) && std::ranges::all_of(face.normals, isNumber) &&
           std::ranges::all_of(face.texCoords, isNumber);
}

std::optional<FaceTriangles> trianglesOf(const TopoDS_Face& face, bool isMeshed, const Fineness& fineness) {
    try {
        // After a failure of the whole each face is tried on its own.
        if (!isMeshed) {
            runMesher(face, fineness);
        }
        std::optional<FaceTriangles> triangles = readFaceTriangles(face);
        return triangles && isFinite(triangles->record) ? std::move(triangles) : std::nullopt;
    } catch (const Standard_Failure&) {
        return std::nullopt;
    }
}

} // namespace

PartMesh meshShape(const TopoDS_Shape& shape, const MeshingOptions& options, bool inParallel,
                   std::vector<std::string>& warnings) {
    PartMesh mesh;
    mesh.sources = splitIntoBodies(shape);
    if (mesh.sources.empty()) {
        return mesh;
    }
    const Fineness fineness = {linearDeflection(shape, options), options.angle * std::numbers::pi / 180,
                               inParallel};
    const bool isMeshed = runMesher(shape, fineness);
    std::size_t faceNumber = 0;
    for (const PartMesh::Source& source : mesh.sources) {
        BodyRecord& body = mesh.bodies.emplace_back();
        double volume = 0;
        bool isComplete = true;
        for (const TopoDS_Face& face : source.faces) {
            ++faceNumber;
            std::optional<FaceTriangles> triangles = trianglesOf(face, isMeshed, fineness);
            if (!triangles) {
                warnings.push_back("face " + std::to_string(faceNumber) + " could not be meshed");
                triangles.emplace();
                isComplete = false;
            }
            volume += triangles->volume;
            body.faces.push_back(std::move(triangles->record));
        }
        // A solid that the file gives inside out.
        if (isComplete && volume < 0 && source.shape.ShapeType() == TopAbs_SOLID) {
            for (FaceRecord& face : body.faces) {
                turnOver(face);
            }
        }
    }
    return mesh;
}

} // namespace orvane::step
