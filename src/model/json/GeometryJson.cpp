#include "model/json/GeometryJson.h"

#include "model/json/DocumentContext.h"
#include "model/json/JsonCursor.h"
#include "model/json/PlacementJson.h"
#include "model/json/Shapes.h"
#include "model/records/ModelDefaults.h"
#include "model/records/PlaneNormals.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane::json {

namespace {

std::vector<float> narrowed(const std::vector<double>& values) {
    std::vector<float> out(values.size());
    std::ranges::transform(values, out.begin(), [](double value) { return static_cast<float>(value); });
    return out;
}

std::vector<float> readPerTriangle(const JsonCursor& list, std::size_t triangles, std::size_t step) {
    if (list.listSize() != triangles * step) {
        list.fail(std::to_string(list.listSize()) + " numbers",
                  std::to_string(triangles * step) + ", " + std::to_string(step) + " a triangle");
    }
    return narrowed(list.floatNumbers(step));
}

/// Marks are often written as unsigned numbers; both halves of the 32-bit range are one value.
std::int32_t readUserValue(const JsonCursor& value) {
    const std::int64_t number =
        value.integer(std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::uint32_t>::max());
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
}

double readLength(const JsonCursor& value) {
    const double length = value.number();
    if (!(length > 0)) {
        value.mismatch("a length above 0");
    }
    return length;
}

std::int32_t readSegments(const JsonCursor& value) {
    // A thousand segments give a torus of two million triangles.
    constexpr std::int64_t kFewest = 3, kMost = 1000;
    return static_cast<std::int32_t>(value.integer(kFewest, kMost));
}

Vector3 readSize(const JsonCursor& list) {
    Vector3 size{};
    list.numbers(size);
    list.forEachItem(readLength);
    return size;
}

void expectFinite(const std::vector<FaceRecord>& faces, const JsonCursor& shape) {
    const auto isFinite = [](float number) { return std::isfinite(number); };
    if (!std::ranges::all_of(
            faces, [&](const FaceRecord& face) { return std::ranges::all_of(face.positions, isFinite); })) {
        shape.fail("a shape that reaches beyond 32-bit floating point", "a smaller one");
    }
}

struct ShapeSizes {
    Vector3 size{};
    double radius = 0, height = 0, tube = 0;
    Placement placement = kIdentityPlacement;
    std::int32_t segments = 32;
};

std::vector<FaceRecord> makeBox(const ShapeSizes& of) {
    return boxFaces(of.size, of.placement);
}
std::vector<FaceRecord> makeCylinder(const ShapeSizes& of) {
    return cylinderFaces(of.radius, of.height, of.segments, of.placement);
}
std::vector<FaceRecord> makeSphere(const ShapeSizes& of) {
    return sphereFaces(of.radius, of.segments, of.placement);
}
std::vector<FaceRecord> makeCone(const ShapeSizes& of) {
    return coneFaces(of.radius, of.height, of.segments, of.placement);
}
std::vector<FaceRecord> makeTorus(const ShapeSizes& of) {
    return torusFaces(of.radius, of.tube, of.segments, of.placement);
}

std::vector<FaceRecord> readShape(const JsonCursor& value) {
    ShapeSizes of;
    const auto size = required(key("size", of.size, readSize));
    const auto radius = required(key("radius", of.radius, readLength));
    const auto height = required(key("height", of.height, readLength));
    const auto tube = required(key("tube", of.tube, readLength));
    std::vector<FaceRecord> faces;
    int shapes = 0;
    const auto shape = [&](const char* name, auto makeFaces, auto... sizes) {
        return key(name, [&, makeFaces, sizes...](const JsonCursor& entry) {
            entry.readObject(sizes..., key("placement", of.placement),
                             key("segments", of.segments, readSegments));
            faces = makeFaces(of);
            ++shapes;
        });
    };
    value.readObject(shape("box", makeBox, size), shape("cylinder", makeCylinder, radius, height),
                     shape("sphere", makeSphere, radius), shape("cone", makeCone, radius, height),
                     shape("torus", makeTorus, radius, tube));
    if (shapes != 1) {
        value.fail(std::to_string(shapes) + " shapes", "one");
    }
    expectFinite(faces, value);
    return faces;
}

BodyKind readBodyKind(const JsonCursor& value) {
    return readWord<BodyKind>(
        value, {{"solid", BodyKind::solid}, {"surface", BodyKind::surface}, {"wire", BodyKind::wire}});
}

std::vector<FaceRecord> readShapeFileOf(const JsonCursor& name) {
    const std::filesystem::path file = resolveExistingFile(name);
    if (!hasExtension(file, {".step", ".stp", ".stl"})) {
        name.mismatch("a file that ends in .step, .stp or .stl");
    }
    return name.context().readShape(file);
}

} // namespace

// Reached through the list template, hence not hidden in the file.
void readValue(const JsonCursor& value, FaceRecord& face) {
    std::vector<double> positions;
    const auto readPositions = [](const JsonCursor& list) { return list.floatNumbers(9); };
    const auto perTriangle = [&](std::size_t step) {
        return [&positions, step](const JsonCursor& list) {
            return readPerTriangle(list, positions.size() / 9, step);
        };
    };
    value.readObject(
        required(key("positions", positions, readPositions)), key("normals", face.normals, perTriangle(9)),
        key("texCoords", face.texCoords, perTriangle(6)), key("feature", face.feature, featureNamed),
        key("userValue", face.userValue, readUserValue));
    face.positions = narrowed(positions);
    if (face.normals.empty()) {
        face.normals = planeNormals(positions);
    }
}

void readValue(const JsonCursor& value, BodyRecord& body) {
    int sources = 0;
    const auto from = [&](auto read) {
        return [&, read](const JsonCursor& source) {
            if (++sources > 1) {
                value.fail("more than one of \"faces\", \"shape\", \"file\"", "one of them");
            }
            return read(source);
        };
    };
    value.readObject(
        key("name", body.name), key("kind", body.kind, readBodyKind), key("visible", body.visible),
        key("faces", body.faces, from(valueAs<std::vector<FaceRecord>>)),
        key("shape", body.faces, from(readShape)), key("file", body.faces, from(readShapeFileOf)));
}

void readBodies(const JsonCursor& list) {
    DocumentContext& context = list.context();
    std::vector<BodyRecord>& bodies = context.document->bodies;
    bodies.reserve(list.listSize());
    list.forEachItem([&](const JsonCursor& value) {
        const std::size_t position = bodies.size();
        BodyRecord& body = bodies.emplace_back();
        body.name = defaultBodyName(position);
        readValue(value, body);
        context.bodies.emplace(body.name, static_cast<std::int32_t>(position));
    });
}

} // namespace orvane::json
