#include "document/StrictJson.h"

#include "document/CameraLightWriters.h"
#include "document/MaterialWriter.h"
#include "document/MeshWriters.h"
#include "document/NodeWriter.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orvane {

namespace {

using document::hasFiniteNumbers;
using std::string_view_literals::operator""sv;

constexpr std::size_t kMostShown = 40; ///< bytes of a text

/// What a text may hold that strict readers refuse.
enum TextFault : std::size_t { control, quotation, backslash, noUtf8, faultCount };

constexpr std::string_view kFaultNames[faultCount] = {"a control character", "a quotation mark",
                                                      "a backslash", "bytes that are no UTF-8"};

bool isControl(unsigned char byte) {
    return byte < 0x20;
}

/// Whether no reader could stumble over the byte, whatever stands beside it.
bool isPlain(unsigned char byte) {
    return byte >= 0x20 && byte < 0x80 && byte != '"' && byte != '\\';
}

bool isHexDigit(char character) {
    return "0123456789abcdefABCDEF"sv.find(character) != std::string_view::npos;
}

/// Length of the escape that starts with the backslash at the head of `text`; 0 when it is none.
std::size_t escapeLength(std::string_view text) {
    if (text.size() < 2) {
        return 0;
    }
    if (text[1] == 'u') {
        return text.size() >= 6 && std::ranges::all_of(text.substr(2, 4), isHexDigit) ? 6 : 0;
    }
    return R"("\/bfnrt)"sv.find(text[1]) == std::string_view::npos ? 0 : 2;
}

using TextFaults = std::array<bool, faultCount>;

TextFaults faultsOf(std::string_view text) {
    TextFaults faults{};
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t escape = text[at] == '\\' ? escapeLength(text.substr(at)) : 0;
        faults[control] |= isControl(static_cast<unsigned char>(text[at]));
        faults[quotation] |= text[at] == '"';
        faults[backslash] |= text[at] == '\\' && escape == 0;
        at += std::max<std::size_t>(escape, 1);
    }
    faults[noUtf8] = wellFormedUtf8Length(text) < text.size();
    return faults;
}

/// The beginning of a text on one line of UTF-8, with a `?` for each byte that has no place there.
std::string shown(std::string_view text) {
    std::string safe;
    while (!text.empty()) {
        const std::size_t length = wellFormedUtf8Length(text);
        safe += text.substr(0, length);
        safe += length < text.size() ? "?" : "";
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    std::ranges::replace_if(safe, isControl, '?');
    const std::size_t end = wellFormedUtf8Length(std::string_view(safe).substr(0, kMostShown));
    return end < safe.size() ? safe.substr(0, end) + "..." : safe;
}

void visitTable(const ExportedTable& table, std::size_t cellCount, auto visit) {
    visit("the title of a table", table.title);
    for (const std::string& header : table.headers) {
        visit("a header of a table", header);
    }
    for (const std::vector<std::string>& row : table.rows) {
        for (std::size_t cell = 0; cell < std::min(cellCount, row.size()); ++cell) {
            visit("a cell of a table", row[cell]);
        }
    }
}

void visitScene(const GltfDocument& document, const GltfScene& scene, auto visit) {
    visit("the name of a scene", scene.name);
    for (const std::string& state : scene.displayStates) {
        visit("the name of a display state", state);
    }
    for (const CustomProperty& property : scene.customProperties) {
        visit("the name of a property", property.name);
        visit("the value of a property", property.value);
    }
    for (const std::int32_t animation : scene.animations) {
        visit("the name of an animation", document.animations[static_cast<std::size_t>(animation)]->name);
    }
}

void visitNode(const GltfDocument& document, const GltfNode& node, auto visit) {
    visit("the name of a node", node.name);
    for (const GltfComment& comment : node.comments) {
        visit("the name of a comment", comment.name);
        visit("the text of a comment", comment.text);
    }
    if (const auto states = document.displayStatesByComponent.find(node.component);
        node.component && states != document.displayStatesByComponent.end()) {
        for (const auto& [name, state] : states->second) {
            visit("the name of a display state", name);
        }
    }
}

/// What of a picture stands in the text: nothing when it is embedded.
void visitPictures(const GltfDocument& document, auto visit) {
    const auto isLoose = [](const GltfImage& image) { return image.bufferView < 0; };
    for (const auto& texture : document.textures) {
        if (texture->source >= 0 && texture->sampler >= 0 &&
            isLoose(*document.images[static_cast<std::size_t>(texture->source)])) {
            visit("the name of a texture", texture->name);
        }
    }
    for (const auto& image : document.images) {
        if (isLoose(*image)) {
            visit("the file name of a picture", image->name);
        }
    }
}

/// Calls `visit(what, text)` for every text that `writeDocument` writes as it is.
void visitTexts(const GltfDocument& document, auto visit) {
    for (const GltfScene& scene : document.scenes) {
        visitScene(document, scene, visit);
    }
    for (const auto& node : document.nodes) {
        visitNode(document, *node, visit);
    }
    for (const ExportedTable& table : document.generalTables) {
        visitTable(table, table.headers.size(), visit);
    }
    if (const auto& table = document.designTable) {
        visitTable(*table, table->rows.empty() ? 0 : table->rows.front().size(), visit);
    }
    for (const GltfMaterial* material : document.materials) {
        visit("the name of a material", material->mname);
    }
    visitPictures(document, visit);
    for (const auto& buffer : document.buffers) {
        visit("the file name of a buffer", buffer->uri);
    }
}

void addReason(std::vector<std::string>& reasons, const std::string& what) {
    reasons.push_back("the result holds " + what +
                      ", and so, as this format has it, no strict JSON: many viewers will not open it");
}

void addTextReasons(const GltfDocument& document, std::vector<std::string>& reasons) {
    TextFaults told{};
    visitTexts(document, [&](std::string_view what, std::string_view text) {
        if (std::ranges::all_of(text, isPlain)) {
            return;
        }
        const TextFaults faults = faultsOf(text);
        for (std::size_t fault = 0; fault < faultCount; ++fault) {
            if (faults[fault] && !told[fault]) {
                told[fault] = true;
                addReason(reasons, std::string(kFaultNames[fault]) + " in " + std::string(what) + " (" +
                                       shown(text) + ")");
            }
        }
    });
}

/// What holds a number that is infinite or none; nothing when all numbers are finite.
std::string_view placeOfNoNumber(const GltfDocument& document) {
    const auto isAmiss = [](const auto& record) { return !hasFiniteNumbers(*record); };
    return std::ranges::any_of(document.nodes, isAmiss)       ? "the placement of a node"
           : std::ranges::any_of(document.cameras, isAmiss)   ? "a camera"
           : std::ranges::any_of(document.lights, isAmiss)    ? "a light"
           : std::ranges::any_of(document.materials, isAmiss) ? "a material"
           : std::ranges::any_of(document.accessors, isAmiss) ? "the bounds of a mesh"
                                                              : "";
}

} // namespace

std::vector<std::string> reasonsOfStrictReaders(const GltfDocument& document) {
    std::vector<std::string> reasons;
    addTextReasons(document, reasons);
    if (const std::string_view place = placeOfNoNumber(document); !place.empty()) {
        addReason(reasons, "a number that is not finite in " + std::string(place));
    }
    if (!document.lights.empty() && document.generalTables.empty() && document.designTable) {
        addReason(reasons, "lights and a design table, but no general tables");
    }
    if (!std::ranges::all_of(document.nodes, [](const auto& node) { return isStrictJson(*node); })) {
        addReason(reasons, "comments of components that are shown");
    }
    return reasons;
}

} // namespace orvane
