#pragma once

#include <nlohmann/json_fwd.hpp>

namespace orvane::json {

struct DocumentContext;

/// Fills `context.document`, whose kind and path are set, from the tree of its file, and notes in `context`
/// what is left to be checked or read: the components and the documents that it mentions. Throws
/// `ModelError`.
void readDocumentJson(const nlohmann::json& tree, DocumentContext& context);

} // namespace orvane::json
