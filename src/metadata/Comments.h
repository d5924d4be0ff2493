#pragma once

#include "document/GltfDocument.h"
#include "host/HostModelDoc.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvane {

/// The document that each node shows, by the node's id. A node without one is not in it, or has an empty
/// reference.
using NodeDocuments = std::unordered_map<std::int32_t, HostRef<HostModelDoc>>;

/// Appends the comments of the documents that they show to the nodes of a scene and everything below them.
void collectSceneComments(GltfDocument& document, std::span<const std::int32_t> nodes,
                          const NodeDocuments& nodeDocuments);

} // namespace orvane

namespace orvane::metadata {

/// A comment's text as it stands in a scene: every line feed becomes a backslash and `n`, carriage returns
/// go, and everything else stays.
std::string cleanText(std::string_view stlText);

/// The comments of documents. While the host is at rest, each document's features are walked only once,
/// however many nodes show it.
class DocumentComments {
public:
    /// Those in the first folder of the document's feature tree, in the host's order. Valid until the next
    /// call.
    const std::vector<GltfComment>& of(const HostRef<HostModelDoc>& document);

private:
    struct Entry {
        HostRef<HostModelDoc> document; ///< held, so that its identity stays its own
        std::vector<GltfComment> comments;
    };
    std::unordered_map<const void*, Entry> byIdentity_;
};

} // namespace orvane::metadata
