#include "geometry/PolarDecomposition.h"

#include <cmath>
#include <cstddef>
#include <optional>

namespace orvane::geometry {

namespace {

double dot(const DoubleVector& a, const DoubleVector& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

DoubleVector cross(const DoubleVector& a, const DoubleVector& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

DoubleVector column(const DoubleMatrix3& m, std::size_t j) {
    return {m[0][j], m[1][j], m[2][j]};
}

DoubleMatrix3 transpose(const DoubleMatrix3& m) {
    return {column(m, 0), column(m, 1), column(m, 2)};
}

/// The transpose of the inverse, times the determinant.
DoubleMatrix3 adjointTranspose(const DoubleMatrix3& m) {
    return {cross(m[1], m[2]), cross(m[2], m[0]), cross(m[0], m[1])};
}

/// The largest sum of the absolute values of a row.
double normInf(const DoubleMatrix3& m) {
    double largest = 0;
    for (const DoubleVector& row : m) {
        const double sum = std::abs(row[0]) + std::abs(row[1]) + std::abs(row[2]);
        largest = largest < sum ? sum : largest;
    }
    return largest;
}

/// The same of a column.
double normOne(const DoubleMatrix3& m) {
    return normInf(transpose(m));
}

/// The column that holds the entry of the largest absolute value; empty if all are 0.
std::optional<std::size_t> columnOfLargest(const DoubleMatrix3& m) {
    double largest = 0;
    std::optional<std::size_t> found;
    for (const DoubleVector& row : m) {
        for (std::size_t j = 0; j < 3; ++j) {
            if (std::abs(row[j]) > largest) {
                largest = std::abs(row[j]);
                found = j;
            }
        }
    }
    return found;
}

/// The u of the Householder reflection I - u * transpose(u) that turns `v` into the third axis.
DoubleVector makeReflector(const DoubleVector& v) {
    const double length = std::sqrt(dot(v, v));
    DoubleVector u = {v[0], v[1], v[2] + (v[2] < 0 ? -length : length)};
    const double s = std::sqrt(2 / dot(u, u));
    for (double& entry : u) {
        entry = entry * s;
    }
    return u;
}

void reflectColumns(DoubleMatrix3& m, const DoubleVector& u) {
    for (std::size_t i = 0; i < 3; ++i) {
        const double s = dot(u, column(m, i));
        for (std::size_t j = 0; j < 3; ++j) {
            m[j][i] -= u[j] * s;
        }
    }
}

void reflectRows(DoubleMatrix3& m, const DoubleVector& u) {
    for (DoubleVector& row : m) {
        const double s = dot(u, row);
        for (std::size_t j = 0; j < 3; ++j) {
            row[j] -= u[j] * s;
        }
    }
}

/// The orthogonal factor of a singular matrix: reflections bring it to a 2x2 block, whose factor is known.
DoubleMatrix3 orthogonalOfSingular(DoubleMatrix3 m, const DoubleMatrix3& adjoint) {
    const std::optional<std::size_t> kernel = columnOfLargest(adjoint);
    if (!kernel) {
        // Rank 1 or 0. Shoemake's do_rank1 is called with one storage for the matrix and the factor, and
        // starts by setting the factor to the identity, so that the matrix is never seen and the reflections
        // of the identity cancel out: this is what his routine gives.
        return kDoubleIdentity3;
    }
    const DoubleVector fromLeft = makeReflector(column(adjoint, *kernel));
    reflectColumns(m, fromLeft);
    const DoubleVector fromRight = makeReflector(cross(m[0], m[1]));
    reflectRows(m, fromRight);

    const double w = m[0][0], x = m[0][1], y = m[1][0], z = m[1][1];
    const bool isRotation = w * z > x * y;
    const double c = isRotation ? z + w : z - w;
    const double s = isRotation ? y - x : y + x;
    const double d = std::sqrt(c * c + s * s);
    const double cosine = c / d, sine = s / d;
    DoubleMatrix3 factor = {
        {{isRotation ? cosine : -cosine, isRotation ? -sine : sine, 0}, {sine, cosine, 0}, {0, 0, 1}}};
    reflectColumns(factor, fromLeft);
    reflectRows(factor, fromRight);
    return factor;
}

/// The matrix product, made symmetric.
DoubleMatrix3 symmetricProduct(const DoubleMatrix3& a, const DoubleMatrix3& b) {
    DoubleMatrix3 result;
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            result[i][j] = dot(a[i], column(b, j));
        }
    }
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = i; j < 3; ++j) {
            result[i][j] = result[j][i] = 0.5 * (result[i][j] + result[j][i]);
        }
    }
    return result;
}

} // namespace

PolarFactors polarDecompose(const DoubleMatrix3& matrix) {
    constexpr double kTolerance = 1e-6;
    DoubleMatrix3 m = transpose(matrix);
    double one = normOne(m), inf = normInf(m), changeOne = 0, determinant = 0;
    do {
        const DoubleMatrix3 adjoint = adjointTranspose(m);
        determinant = dot(m[0], adjoint[0]);
        if (determinant == 0) {
            m = orthogonalOfSingular(m, adjoint);
            break;
        }
        const double gamma =
            std::sqrt(std::sqrt((normOne(adjoint) * normInf(adjoint)) / (one * inf)) / std::abs(determinant));
        const double g1 = gamma * 0.5, g2 = 0.5 / (gamma * determinant);
        DoubleMatrix3 change;
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t j = 0; j < 3; ++j) {
                const double next = g1 * m[i][j] + g2 * adjoint[i][j];
                change[i][j] = m[i][j] - next;
                m[i][j] = next;
            }
        }
        changeOne = normOne(change);
        one = normOne(m);
        inf = normInf(m);
    } while (changeOne > one * kTolerance);
    return {transpose(m), symmetricProduct(m, matrix), determinant};
}

} // namespace orvane::geometry
