#include "model/json/Shapes.h"

#include "model/json/PlacementJson.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace orvane::json {

namespace {

struct Vertex {
    Vector3 position, normal;
    double u = 0, v = 0;
};

Vector3 timesMatrix(const Vector3& row, const double* matrix) {
    Vector3 out{};
    for (std::size_t i = 0; i < 3; ++i) {
        out[i] = row[0] * matrix[i] + row[1] * matrix[3 + i] + row[2] * matrix[6 + i];
    }
    return out;
}

/// The cofactors of the rotation block.
std::array<double, 9> cofactors(const Placement& r) {
    std::array<double, 9> out{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const std::size_t r1 = (row + 1) % 3 * 3, r2 = (row + 2) % 3 * 3;
            const std::size_t c1 = (column + 1) % 3, c2 = (column + 2) % 3;
            out[row * 3 + column] = r[r1 + c1] * r[r2 + c2] - r[r1 + c2] * r[r2 + c1];
        }
    }
    return out;
}

/// Collects the placed triangles of one face.
class FaceBuilder {
public:
    explicit FaceBuilder(const Placement& placement) : placement_(placement), normals_(cofactors(placement)) {
        const double determinant =
            placement[0] * normals_[0] + placement[1] * normals_[1] + placement[2] * normals_[2];
        mirrors_ = determinant * placement[12] < 0;
        // A normal turns by the inverse transpose, which is the cofactors by the determinant: here its sign
        // is enough.
        if (mirrors_) {
            std::ranges::for_each(normals_, [](double& value) { value = -value; });
        }
    }

    void triangle(const Vertex& a, const Vertex& b, const Vertex& c) {
        for (const Vertex* vertex : {&a, mirrors_ ? &c : &b, mirrors_ ? &b : &c}) {
            add(*vertex);
        }
    }
    void quad(const Vertex& a, const Vertex& b, const Vertex& c, const Vertex& d) {
        triangle(a, b, c);
        triangle(a, c, d);
    }

    FaceRecord take() { return std::move(face_); }

private:
    void add(const Vertex& vertex) {
        const Vector3 turned = timesMatrix(vertex.position, placement_.data());
        const Vector3 n = timesMatrix(vertex.normal, normals_.data());
        const double length = std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]);
        for (std::size_t i = 0; i < 3; ++i) {
            face_.positions.push_back(static_cast<float>(turned[i] * placement_[12] + placement_[9 + i]));
            face_.normals.push_back(length > 0 ? static_cast<float>(n[i] / length) : 0.0f);
        }
        face_.texCoords.push_back(static_cast<float>(vertex.u));
        face_.texCoords.push_back(static_cast<float>(vertex.v));
    }

    const Placement& placement_;
    std::array<double, 9> normals_;
    bool mirrors_ = false;
    FaceRecord face_;
};

/// Direction `step` of `steps` around the circle; the last is the first to the bit, so that the seam is
/// closed.
SineCosine around(int step, int steps) {
    return sineCosineOfDegrees(360.0 * (step % steps) / steps);
}

/// An end face at height `z` that looks up or down.
FaceRecord disc(double radius, double z, bool up, int segments, const Placement& placement) {
    const Vector3 normal = {0, 0, up ? 1.0 : -1.0};
    const auto rim = [&](int i) {
        const auto [s, c] = around(i, segments);
        return Vertex{{radius * c, radius * s, z}, normal, 0.5 + 0.5 * (up ? c : -c), 0.5 + 0.5 * s};
    };
    FaceBuilder face(placement);
    const Vertex middle = {{0, 0, z}, normal, 0.5, 0.5};
    for (int i = 0; i < segments; ++i) {
        up ? face.triangle(middle, rim(i), rim(i + 1)) : face.triangle(middle, rim(i + 1), rim(i));
    }
    return face.take();
}

/// A grid of `columns` by `rows` quads over `vertexAt(column, row)`; edges that shrink to a point give one
/// triangle.
template <typename VertexAt>
FaceRecord grid(int columns, int rows, const Placement& placement, VertexAt&& vertexAt) {
    FaceBuilder face(placement);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const Vertex a = vertexAt(column, row), b = vertexAt(column + 1, row);
            const Vertex c = vertexAt(column + 1, row + 1), d = vertexAt(column, row + 1);
            if (a.position == b.position) {
                face.triangle(a, c, d);
            } else if (c.position == d.position) {
                face.triangle(a, b, c);
            } else {
                face.quad(a, b, c, d);
            }
        }
    }
    return face.take();
}

} // namespace

std::vector<FaceRecord> boxFaces(const Vector3& size, const Placement& placement) {
    std::vector<FaceRecord> faces;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        for (const double side : {-1.0, 1.0}) {
            const std::size_t across = axis == 0 ? 1 : 0;
            const std::size_t upward = axis == 2 ? 1 : 2;
            // x to y, z to x and y to z turn counter-clockwise; the y sides see their axes the other way
            // round.
            const double right = axis == 1 ? -side : side;
            const auto corner = [&](double u, double v) {
                Vertex vertex{{}, {}, u, v};
                vertex.position[axis] = side * size[axis] / 2;
                vertex.position[across] = right * (u - 0.5) * size[across];
                vertex.position[upward] = (v - 0.5) * size[upward];
                vertex.normal[axis] = side;
                return vertex;
            };
            FaceBuilder face(placement);
            face.quad(corner(0, 0), corner(1, 0), corner(1, 1), corner(0, 1));
            faces.push_back(face.take());
        }
    }
    return faces;
}

std::vector<FaceRecord> cylinderFaces(double radius, double height, int segments,
                                      const Placement& placement) {
    const auto wall = grid(segments, 1, placement, [&](int column, int row) {
        const auto [s, c] = around(column, segments);
        return Vertex{{radius * c, radius * s, (row - 0.5) * height},
                      {c, s, 0},
                      double(column) / segments,
                      double(row)};
    });
    return {wall, disc(radius, height / 2, true, segments, placement),
            disc(radius, -height / 2, false, segments, placement)};
}

std::vector<FaceRecord> sphereFaces(double radius, int segments, const Placement& placement) {
    const int rows = std::max(2, segments / 2);
    return {grid(segments, rows, placement, [&](int column, int row) {
        const auto [s, c] = around(column, segments);
        const auto [height, ring] = sineCosineOfDegrees(-90 + 180.0 * row / rows);
        const Vector3 n = {ring * c, ring * s, height};
        return Vertex{
            {radius * n[0], radius * n[1], radius * n[2]}, n, double(column) / segments, double(row) / rows};
    })};
}

std::vector<FaceRecord> coneFaces(double radius, double height, int segments, const Placement& placement) {
    // The normal leans upward as much as the side leans inward. At the apex each triangle takes that of its
    // middle.
    const double slant = std::hypot(radius, height);
    const auto normalAt = [&](const SineCosine& direction) {
        return Vector3{direction.cosine * height / slant, direction.sine * height / slant, radius / slant};
    };
    const auto rim = [&](int i) {
        const SineCosine direction = around(i, segments);
        return Vertex{{radius * direction.cosine, radius * direction.sine, -height / 2},
                      normalAt(direction),
                      double(i) / segments,
                      0};
    };
    FaceBuilder side(placement);
    for (int i = 0; i < segments; ++i) {
        const Vertex apex = {
            {0, 0, height / 2}, normalAt(around(2 * i + 1, 2 * segments)), (i + 0.5) / segments, 1};
        side.triangle(rim(i), rim(i + 1), apex);
    }
    return {side.take(), disc(radius, -height / 2, false, segments, placement)};
}

std::vector<FaceRecord> torusFaces(double radius, double tube, int segments, const Placement& placement) {
    return {grid(segments, segments, placement, [&](int column, int row) {
        const auto [s, c] = around(column, segments);
        const auto [rise, out] = around(row, segments);
        const double ring = radius + tube * out;
        return Vertex{{ring * c, ring * s, tube * rise},
                      {out * c, out * s, rise},
                      double(column) / segments,
                      double(row) / segments};
    })};
}

} // namespace orvane::json
