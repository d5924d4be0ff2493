#include "model/json/GeometryJson.h"

#include "model/json/DocumentContext.h"
#include "model/json/JsonCursor.h"
#include "model/json/PlacementJson.h"
#include "model/json/Shapes.h"
#include "platform/Utf8.h"

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

/// Every triangle's own normal, three times: `(b - a) x (c - a)` divided by its length; zeros where that is
/// 0.
std::vector<float> planeNormals(const std::vector<double>& positions) {
    std::vector<float> out(positions.size());
    for (std::size_t at = 0; at < positions.size(); at += 9) {
        const double* p = &positions[at];
        const Vector3 ab = {p[3] - p[0], p[4] - p[1], p[5] - p[2]};
        const Vector3 ac = {p[6] - p[0], p[7] - p[1], p[8] - p[2]};
        const Vector3 n = {ab[1] * ac[2] - ab[2] * ac[1], ab[2] * ac[0] - ab[0] * ac[2],
                           ab[0] * ac[1] - ab[1] * ac[0]};
        const double length = std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]);
        for (std::size_t i = 0; i < 9 && length > 0; ++i) {
            out[at + i] = static_cast<float>(n[i % 3] / length);
        }
    }
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

struct ShapeFrame {
    Placement placement = kIdentityPlacement;
    int segments = 32;
};

ShapeFrame readFrame(const JsonCursor& shape) {
    // A thousand segments give a torus of two million triangles.
    constexpr std::int64_t kFewest = 3, kMost = 1000;
    ShapeFrame frame;
    shape.read("placement", frame.placement);
    shape.with("segments", [&](const JsonCursor& value) {
        frame.segments = static_cast<int>(value.integer(kFewest, kMost));
    });
    return frame;
}

std::vector<FaceRecord> readBox(const JsonCursor& shape) {
    shape.expectObject({"size", "placement", "segments"});
    Vector3 size{};
    const JsonCursor list = shape.require("size");
    list.numbers(size);
    list.forEachItem(readLength);
    return boxFaces(size, readFrame(shape).placement);
}

std::vector<FaceRecord> readCylinder(const JsonCursor& shape) {
    shape.expectObject({"radius", "height", "placement", "segments"});
    const ShapeFrame frame = readFrame(shape);
    return cylinderFaces(readLength(shape.require("radius")), readLength(shape.require("height")),
                         frame.segments, frame.placement);
}

std::vector<FaceRecord> readSphere(const JsonCursor& shape) {
    shape.expectObject({"radius", "placement", "segments"});
    const ShapeFrame frame = readFrame(shape);
    return sphereFaces(readLength(shape.require("radius")), frame.segments, frame.placement);
}

std::vector<FaceRecord> readCone(const JsonCursor& shape) {
    shape.expectObject({"radius", "height", "placement", "segments"});
    const ShapeFrame frame = readFrame(shape);
    return coneFaces(readLength(shape.require("radius")), readLength(shape.require("height")), frame.segments,
                     frame.placement);
}

std::vector<FaceRecord> readTorus(const JsonCursor& shape) {
    shape.expectObject({"radius", "tube", "placement", "segments"});
    const ShapeFrame frame = readFrame(shape);
    return torusFaces(readLength(shape.require("radius")), readLength(shape.require("tube")), frame.segments,
                      frame.placement);
}

std::vector<FaceRecord> readShape(const JsonCursor& value) {
    value.expectObject({"box", "cylinder", "sphere", "cone", "torus"});
    std::vector<FaceRecord> faces;
    int shapes = 0;
    const auto take = [&](std::string_view key, std::vector<FaceRecord> (*read)(const JsonCursor&)) {
        value.with(key, [&](const JsonCursor& shape) {
            faces = read(shape);
            ++shapes;
        });
    };
    take("box", readBox);
    take("cylinder", readCylinder);
    take("sphere", readSphere);
    take("cone", readCone);
    take("torus", readTorus);
    if (shapes != 1) {
        value.fail(std::to_string(shapes) + " shapes", "one");
    }
    const auto isFinite = [](float number) { return std::isfinite(number); };
    if (!std::ranges::all_of(
            faces, [&](const FaceRecord& face) { return std::ranges::all_of(face.positions, isFinite); })) {
        value.fail("a shape that reaches beyond 32-bit floating point", "a smaller one");
    }
    return faces;
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
    value.expectObject({"positions", "normals", "texCoords", "feature", "userValue"});
    const std::vector<double> positions = value.require("positions").floatNumbers(9);
    const std::size_t triangles = positions.size() / 9;
    face.positions = narrowed(positions);
    if (const auto normals = value.find("normals")) {
        face.normals = readPerTriangle(*normals, triangles, 9);
    } else {
        face.normals = planeNormals(positions);
    }
    value.with("texCoords",
               [&](const JsonCursor& list) { face.texCoords = readPerTriangle(list, triangles, 6); });
    value.with("feature", [&](const JsonCursor& name) { face.feature = featureNamed(name); });
    value.with("userValue", [&](const JsonCursor& number) { face.userValue = readUserValue(number); });
}

void readValue(const JsonCursor& value, BodyRecord& body) {
    value.expectObject({"name", "kind", "visible", "faces", "shape", "file"});
    if (value.has("faces") + value.has("shape") + value.has("file") > 1) {
        value.fail("more than one of \"faces\", \"shape\", \"file\"", "one of them");
    }
    value.read("name", body.name);
    value.with("kind", [&](const JsonCursor& kind) {
        body.kind = readWord<BodyKind>(
            kind, {{"solid", BodyKind::solid}, {"surface", BodyKind::surface}, {"wire", BodyKind::wire}});
    });
    value.read("visible", body.visible);
    value.read("faces", body.faces);
    value.with("shape", [&](const JsonCursor& shape) { body.faces = readShape(shape); });
    value.with("file", [&](const JsonCursor& name) { body.faces = readShapeFileOf(name); });
}

void readBodies(const JsonCursor& list) {
    DocumentContext& context = list.context();
    std::vector<BodyRecord>& bodies = context.document->bodies;
    readValue(list, bodies);
    for (std::size_t i = 0; i < bodies.size(); ++i) {
        if (!list.at(i).has("name")) {
            bodies[i].name = utf16FromUtf8("Body" + std::to_string(i + 1));
        }
        context.bodies.emplace(bodies[i].name, static_cast<std::int32_t>(i));
    }
}

} // namespace orvane::json
