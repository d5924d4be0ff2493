#include "metadata/Comments.h"

#include "document/AsciiNames.h"

namespace orvane::metadata {

namespace {

/// The first folder alone counts, even when it is empty.
HostRef<HostCommentFolder> firstCommentFolder(HostModelDoc& document) {
    for (HostRef<HostFeature> feature = document.firstFeature(); feature; feature = feature->nextFeature()) {
        if (feature->featureTypeName() == kCommentsFolderType) {
            return feature->commentFolder();
        }
    }
    return {};
}

std::vector<GltfComment> readComments(HostModelDoc& document) {
    std::vector<GltfComment> comments;
    const HostRef<HostCommentFolder> folder = firstCommentFolder(document);
    if (!folder || folder->commentCount() <= 0) {
        return comments;
    }
    for (const HostRef<HostComment>& comment : folder->comments()) {
        if (comment) {
            comments.push_back(
                {toAsciiName(comment->commentName()), cleanText(toAsciiName(comment->commentText()))});
        }
    }
    return comments;
}

} // namespace

std::string cleanText(std::string_view stlText) {
    std::string clean;
    clean.reserve(stlText.size());
    for (const char character : stlText) {
        if (character == '\n') {
            clean += "\\n";
        } else if (character != '\r') {
            clean += character;
        }
    }
    return clean;
}

const std::vector<GltfComment>& DocumentComments::of(const HostRef<HostModelDoc>& document) {
    const auto [entry, isNew] = byIdentity_.try_emplace(document->identity());
    if (isNew) {
        entry->second = {document, readComments(*document)};
    }
    return entry->second.comments;
}

} // namespace orvane::metadata

namespace orvane {

namespace {

void collectNodeComments(GltfNode& node, const HostRef<HostModelDoc>& nodeDocument,
                         metadata::DocumentComments& comments) {
    if (nodeDocument) {
        const std::vector<GltfComment>& found = comments.of(nodeDocument);
        node.comments.insert(node.comments.end(), found.begin(), found.end());
    }
}

void collectBelow(GltfDocument& document, std::span<const std::int32_t> nodes,
                  const NodeDocuments& nodeDocuments, metadata::DocumentComments& comments) {
    for (const std::int32_t id : nodes) {
        GltfNode& node = *document.nodes[static_cast<std::size_t>(id)];
        if (const auto found = nodeDocuments.find(id); found != nodeDocuments.end()) {
            collectNodeComments(node, found->second, comments);
        }
        collectBelow(document, node.children, nodeDocuments, comments);
    }
}

} // namespace

void collectSceneComments(GltfDocument& document, std::span<const std::int32_t> nodes,
                          const NodeDocuments& nodeDocuments) {
    metadata::DocumentComments comments;
    collectBelow(document, nodes, nodeDocuments, comments);
}

} // namespace orvane
