#include "document/NodeWriter.h"

#include "document/ExtensionWriters.h"
#include "document/NearEquality.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace orvane {

namespace {

bool isIdentity(const NodeMatrix& matrix) {
    for (std::size_t i = 0; i < matrix.size(); ++i) {
        const bool isOne = i == 0 || i == 4 || i == 8 || i == 12;
        if (!isNear(matrix[i], isOne ? 1 : 0)) {
            return false;
        }
    }
    return true;
}

/// The host's sixteen numbers as a column-major 4x4 matrix: the rotation's rows become columns, and the
/// translation the last column.
void writeMatrixNumbers(TextStream& out, const NodeMatrix& matrix) {
    static constexpr std::size_t kOrder[4][4] = {
        {0, 1, 2, 13}, {3, 4, 5, 14}, {6, 7, 8, 15}, {9, 10, 11, 12}};
    for (std::size_t line = 0; line < 4; ++line) {
        for (std::size_t i = 0; i < 4; ++i) {
            const bool isLast = line == 3 && i == 3;
            out << "\t\t\t\t" << matrix[kOrder[line][i]] << (isLast ? "\n" : i == 3 ? ",\n" : ",\t");
        }
    }
}

/// The separator is not reset inside the object: without a light, its first key is led by the comma that the
/// keys before it have left (docs/output-format.md, "Comments of shown components").
void writeNodeExtensions(TextStream& out, const GltfNode& node, std::string_view& sep) {
    out << "\t\t\t" << sep << "\"extensions\" : {\n";
    if (node.light >= 0) {
        out << "\t\t\t\t\"KHR_lights_punctual\" : {\n"
            << "\t\t\t\t\t\"light\" : " << node.light << "\n"
            << "\t\t\t\t}\n";
        sep = ",";
    }
    if (!node.comments.empty()) {
        out << "\t\t\t\t" << sep << "\"Tessaforge_comments\" : {\n";
        document::writeNodeComments(out, node.comments);
        out << "\t\t\t\t}\n";
    }
    out << "\t\t\t}\n";
    sep = ",";
}

void writeChildren(TextStream& out, const std::vector<std::int32_t>& children) {
    out << "\t\t\t\"children\": [\n"
        << "\t\t\t\t";
    for (std::size_t i = 0; i < children.size(); ++i) {
        out << (i > 0 ? ", " : "") << children[i];
    }
    out << "\n"
        << "\t\t\t]\n";
}

void writeDisplayStates(TextStream& out, const GltfDocument& document, const GltfNode& node) {
    const auto states = document.displayStatesByComponent.find(node.component);
    if (!node.component || states == document.displayStatesByComponent.end()) {
        return;
    }
    out << ",\n"
        << "\t\t\t\"extensions\": {\n"
        << "\t\t\t\t\"TF_display_states\": {\n";
    document::writeComponentDisplayStates(out, states->second);
    out << "\t\t\t\t}\n"
        << "\t\t\t}\n";
}

} // namespace

void writeNode(TextStream& out, const GltfDocument& document, const GltfNode& node) {
    std::string_view sep;
    out << "\t\t{\n";
    if (!node.children.empty()) {
        writeChildren(out, node.children);
        sep = ",";
    }
    if (!isIdentity(node.matrix)) {
        out << "\t\t\t" << sep << "\"matrix\": [\n";
        writeMatrixNumbers(out, node.matrix);
        out << "\t\t\t]\n";
        sep = ",";
    }
    if (node.mesh >= 0) {
        out << "\t\t\t" << sep << "\"mesh\": " << node.mesh << "\n";
        sep = ",";
    } else if (node.camera >= 0) {
        out << "\t\t\t" << sep << "\"camera\": " << node.camera << "\n";
        sep = ",";
    }
    if (node.light >= 0 || !node.comments.empty()) {
        writeNodeExtensions(out, node, sep);
    }
    out << "\t\t\t" << sep << "\"name\": \"" << node.name << "\"";
    writeDisplayStates(out, document, node);
    out << "\t\t}\n";
}

bool isStrictJson(const GltfNode& node) {
    const auto hasKeyBefore = [&] {
        return !node.children.empty() || node.mesh >= 0 || node.camera >= 0 || !isIdentity(node.matrix);
    };
    return node.comments.empty() || node.light >= 0 || !hasKeyBefore();
}

bool hasFiniteNumbers(const GltfNode& node) {
    return std::ranges::all_of(node.matrix, [](double number) { return std::isfinite(number); });
}

} // namespace orvane
