#pragma once

#include "model/records/ModelRecords.h"

#include <functional>
#include <string>
#include <unordered_map>

namespace orvane::json {

class JsonCursor;

/// A component that a document names: checked when all documents are read, since the way to it may lead
/// through others.
struct ComponentMention {
    std::u16string fullName;
    std::string place; ///< JSON path
};

/// A document that a component shows, to be read after the one that mentions it.
struct DocumentMention {
    ComponentRecord* component = nullptr;
    std::filesystem::path file;
    std::string place; ///< JSON path
};

/// What the reading of one document needs beside the value at hand.
struct DocumentContext {
    std::filesystem::path file; ///< as messages name it
    ModelDocument* document = nullptr;
    /// Reads a STEP or STL file as the faces of one body.
    std::function<std::vector<FaceRecord>(const std::filesystem::path&)> readShape;

    /// Positions by name; of equal names the first.
    std::unordered_map<std::u16string, std::int32_t> features, bodies;
    std::vector<ComponentMention> componentMentions;
    std::vector<DocumentMention> documentMentions;
};

/// The position of the feature or the body that `name` names; throws `ModelError` where there is none.
std::int32_t featureNamed(const JsonCursor& name);
std::int32_t bodyNamed(const JsonCursor& name);

/// Component full names, noted to be checked when all documents are read.
std::u16string mentionComponent(const JsonCursor& fullName);
std::vector<std::u16string> mentionComponents(const JsonCursor& fullNames);

/// A file's path, resolved against the folder of the document; throws `ModelError` for an empty name.
std::filesystem::path resolveFile(const JsonCursor& name);
/// The same for a file that has to be there.
std::filesystem::path resolveExistingFile(const JsonCursor& name);
/// The same for a picture or an appearance file, which may be missing: absolute, in UTF-8; empty for an empty
/// name.
std::string resolvePicture(const JsonCursor& name);

/// Whether the file's extension is one of these (lower case, with the dot), whatever its case.
bool hasExtension(const std::filesystem::path& file, std::initializer_list<std::string_view> extensions);

} // namespace orvane::json
