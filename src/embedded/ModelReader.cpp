#include "embedded/ModelReader.h"

#include "embedded/HostPath.h"
#include "embedded/InstanceTree.h"
#include "embedded/ModelError.h"
#include "embedded/json/DocumentContext.h"
#include "embedded/json/DocumentJson.h"
#include "embedded/json/JsonCursor.h"
#include "embedded/json/JsonText.h"
#include "embedded/json/Utf8Check.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <map>
#include <new>
#include <nlohmann/json.hpp>

namespace orvane {

namespace {

namespace fs = std::filesystem;

class ModelLoader {
public:
    explicit ModelLoader(const MeshingOptions& options) : m_options(options) {}

    Model load(const fs::path& file) {
        open(file);
        // Documents wait here while those that they mention are read: a chain of them may be longer than the
        // stack.
        while (!m_open.empty()) {
            readNextMention(m_open.back());
        }
        checkTrees();
        checkComponentMentions();
        return std::move(m_model);
    }

private:
    struct File {
        const ModelDocument* document = nullptr;
        bool isOpen = false; ///< documents that it mentions are still being read
    };
    struct OpenDocument {
        File* file = nullptr;
        DocumentContext* context = nullptr;
        std::size_t nextMention = 0;
    };
    struct BodyPlace {
        const ModelDocument* document = nullptr;
        std::size_t body = 0;
    };

    /// What two names of one file have in common. Remembered, since many components show one document.
    const fs::path& fileKey(const fs::path& file) {
        const auto [entry, isNew] = m_keys.try_emplace(file.native());
        if (isNew) {
            std::error_code error;
            entry->second = fs::canonical(file, error);
            if (error) {
                entry->second = fs::absolute(file).lexically_normal();
            }
        }
        return entry->second;
    }

    const ModelDocument* open(const fs::path& path) {
        File& file = m_files[fileKey(path)];
        if (hasExtension(path, {".step", ".stp"})) {
            file.document = readStepFile(path, m_options, m_model);
        } else if (hasExtension(path, {".tfgprt", ".tfgasm"})) {
            DocumentContext& context = readDocument(path);
            file.document = context.document;
            file.isOpen = true;
            m_open.push_back({&file, &context, 0});
        } else {
            throw ModelError(shownPath(path) +
                             ": found a file of another kind, expected .tfgprt, .tfgasm, .step or .stp");
        }
        return file.document;
    }

    DocumentContext& readDocument(const fs::path& path) {
        const nlohmann::json tree = readJsonFile(path);
        auto& document = m_model.documents.emplace_back(std::make_unique<ModelDocument>());
        document->kind = hasExtension(path, {".tfgasm"}) ? DocumentKind::assembly : DocumentKind::part;
        document->path = toHostPath(path);
        DocumentContext& context = *m_contexts.emplace_back(std::make_unique<DocumentContext>());
        context.file = path;
        context.document = document.get();
        context.readShape = [this, &context](const fs::path& file) { return readShape(file, context); };
        readDocumentJson(tree, context);
        return context;
    }

    void readNextMention(OpenDocument& holder) {
        if (holder.nextMention == holder.context->documentMentions.size()) {
            holder.file->isOpen = false;
            holder.context->documentMentions = {};
            m_open.pop_back();
            return;
        }
        const DocumentMention mention = holder.context->documentMentions[holder.nextMention++];
        const auto known = m_files.find(fileKey(mention.file));
        if (known != m_files.end() && known->second.isOpen) {
            throw ModelError(
                shownPath(holder.context->file) + ": " + mention.place + ": found \"" +
                shownPath(mention.file.filename()) +
                "\", which leads back to itself, expected documents that do not refer to themselves");
        }
        mention.component->document = known != m_files.end() ? known->second.document : open(mention.file);
    }

    /// Several bodies may show one file; it is read once and copied from the first of them.
    std::vector<FaceRecord> readShape(const fs::path& file, const DocumentContext& context) {
        const BodyPlace here = {context.document, context.document->bodies.size() - 1};
        const auto [entry, isNew] = m_shapes.emplace(fileKey(file), here);
        if (isNew) {
            return readShapeFile(file, m_options, m_model.warnings);
        }
        return entry->second.document->bodies[entry->second.body].faces;
    }

    void checkTrees() const {
        const auto sizes = measureTrees(m_model);
        for (const auto& context : m_contexts) {
            const TreeSize size = sizes.at(context->document);
            const std::string head = shownPath(context->file) + ": /components: found more than ";
            if (size.components > kMostComponents) {
                throw ModelError(head + std::to_string(kMostComponents) +
                                 " components with all sub-assemblies instanced, expected fewer");
            }
            if (size.levels > kMostComponentLevels) {
                throw ModelError(head + std::to_string(kMostComponentLevels) +
                                 " components one below the other, expected fewer");
            }
        }
    }

    void checkComponentMentions() const {
        ComponentNames names;
        for (const auto& context : m_contexts) {
            for (const ComponentMention& mention : context->componentMentions) {
                if (!names.contains(*context->document, mention.fullName)) {
                    throw ModelError(shownPath(context->file) + ": " + mention.place + ": found \"" +
                                     shortened(utf8FromUtf16(mention.fullName)) +
                                     "\", expected the full name of a component of this document");
                }
            }
        }
    }

    MeshingOptions m_options;
    Model m_model;
    std::unordered_map<fs::path::string_type, fs::path> m_keys;
    std::map<fs::path, File> m_files;
    std::map<fs::path, BodyPlace> m_shapes;
    std::vector<std::unique_ptr<DocumentContext>> m_contexts;
    std::vector<OpenDocument> m_open;
};

} // namespace

Model readModel(const fs::path& file, const MeshingOptions& options) {
    try {
        return ModelLoader(options).load(file);
    } catch (const std::bad_alloc&) {
        throw ModelError(shownPath(file) + ": found more than fits into memory, expected a smaller model");
    } catch (const fs::filesystem_error& error) {
        throw ModelError(shownPath(file) + ": found a file system that fails (" + error.code().message() +
                         "), expected to read the model");
    }
}

} // namespace orvane
