#include "model/ModelReader.h"

#include "model/json/DocumentContext.h"
#include "model/json/DocumentJson.h"
#include "model/json/JsonText.h"
#include "model/json/ShownText.h"
#include "model/records/HostPath.h"
#include "model/records/InstanceTree.h"
#include "model/records/ModelError.h"
#include "model/step/StepReader.h"
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
    explicit ModelLoader(const ReadingOptions& options) : options_(options) {}

    Model load(const fs::path& file) {
        open(file);
        // Documents wait here while those that they mention are read: a chain of them may be longer than the
        // stack.
        while (!open_.empty()) {
            readNextMention(open_.back());
        }
        checkTrees();
        checkComponentMentions();
        return std::move(model_);
    }

private:
    struct File {
        const ModelDocument* document = nullptr;
        bool isOpen = false; ///< documents that it mentions are still being read
    };
    struct OpenDocument {
        File* file = nullptr;
        json::DocumentContext* context = nullptr;
        std::size_t nextMention = 0;
    };
    struct BodyPlace {
        const ModelDocument* document = nullptr;
        std::size_t body = 0;
    };

    /// What two names of one file have in common. Remembered, since many components show one document.
    const fs::path& fileKey(const fs::path& file) {
        const auto [entry, isNew] = keys_.try_emplace(file.native());
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
        File& file = files_[fileKey(path)];
        if (json::hasExtension(path, {".step", ".stp"})) {
            file.document = step::readStepFile(path, options_, model_);
        } else if (json::hasExtension(path, {".tfgprt", ".tfgasm"})) {
            json::DocumentContext& context = readDocument(path);
            file.document = context.document;
            file.isOpen = true;
            open_.push_back({&file, &context, 0});
        } else {
            throw ModelError(path, "", "a file of another kind", ".tfgprt, .tfgasm, .step or .stp");
        }
        return file.document;
    }

    json::DocumentContext& readDocument(const fs::path& path) {
        const json::JsonTree tree = json::readJsonFile(path);
        auto& document = model_.documents.emplace_back(std::make_unique<ModelDocument>());
        document->kind = json::hasExtension(path, {".tfgasm"}) ? DocumentKind::assembly : DocumentKind::part;
        document->path = toHostPath(path);
        json::DocumentContext& context = *contexts_.emplace_back(std::make_unique<json::DocumentContext>());
        context.file = path;
        context.document = document.get();
        context.readShape = [this, &context](const fs::path& file) { return readShape(file, context); };
        json::readDocumentJson(tree.root(), context);
        return context;
    }

    void readNextMention(OpenDocument& holder) {
        if (holder.nextMention == holder.context->documentMentions.size()) {
            holder.file->isOpen = false;
            holder.context->documentMentions = {};
            open_.pop_back();
            return;
        }
        const json::DocumentMention mention = holder.context->documentMentions[holder.nextMention++];
        const auto known = files_.find(fileKey(mention.file));
        if (known != files_.end() && known->second.isOpen) {
            const std::u8string name = mention.file.filename().u8string();
            throw ModelError(holder.context->file, mention.place,
                             '"' + std::string(name.begin(), name.end()) + "\", which leads back to itself",
                             "documents that do not refer to themselves");
        }
        mention.component->document = known != files_.end() ? known->second.document : open(mention.file);
    }

    /// Several bodies may show one file; it is read once and copied from the first of them.
    std::vector<FaceRecord> readShape(const fs::path& file, const json::DocumentContext& context) {
        const BodyPlace here = {context.document, context.document->bodies.size() - 1};
        const auto [entry, isNew] = shapes_.emplace(fileKey(file), here);
        if (isNew) {
            return step::readShapeFile(file, options_, model_.warnings);
        }
        return entry->second.document->bodies[entry->second.body].faces;
    }

    void checkTrees() const {
        TreeSizes sizes;
        for (const auto& context : contexts_) {
            const TreeSize size = sizes.of(*context->document);
            const auto refuse = [&](std::uint64_t most, const char* what) {
                throw ModelError(context->file, "/components",
                                 "more than " + std::to_string(most) + " components " + what, "fewer");
            };
            if (size.components > kMostComponents) {
                refuse(kMostComponents, "with all sub-assemblies instanced");
            }
            if (size.levels > kMostComponentLevels) {
                refuse(kMostComponentLevels, "one below the other");
            }
        }
    }

    void checkComponentMentions() const {
        ComponentNames names;
        for (const auto& context : contexts_) {
            for (const json::ComponentMention& mention : context->componentMentions) {
                if (!names.contains(*context->document, mention.fullName)) {
                    throw ModelError(context->file, mention.place,
                                     json::inQuotes(utf8FromUtf16(mention.fullName)),
                                     "the full name of a component of this document");
                }
            }
        }
    }

    ReadingOptions options_;
    Model model_;
    std::unordered_map<fs::path::string_type, fs::path> keys_;
    std::map<fs::path, File> files_;
    std::map<fs::path, BodyPlace> shapes_;
    std::vector<std::unique_ptr<json::DocumentContext>> contexts_;
    std::vector<OpenDocument> open_;
};

} // namespace

Model readModel(const fs::path& file, const ReadingOptions& options) {
    try {
        return ModelLoader(options).load(file);
    } catch (const std::bad_alloc&) {
        throw ModelError(file, "", "more than fits into memory", "a smaller model");
    } catch (const fs::filesystem_error& error) {
        throw ModelError(file, "", "a file system that fails (" + error.code().message() + ")",
                         "to read the model");
    }
}

} // namespace orvane
