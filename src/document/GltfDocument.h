#pragma once

#include "document/GltfRecords.h"
#include "document/Progress.h"
#include "document/UniqueNames.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace orvane {

template <class Record>
using RecordList = std::vector<std::unique_ptr<Record>>;

/// The whole glTF asset of one export: flat lists of records, in the order in which they were made. Nothing
/// is ever taken out of a list while an export runs, so that indices stay what they are.
struct GltfDocument {
    RecordList<GltfBuffer> buffers;
    RecordList<GltfBufferView> bufferViews;
    RecordList<GltfAccessor> accessors;
    RecordList<GltfMesh> meshes;
    RecordList<GltfCamera> cameras;
    RecordList<GltfNode> nodes;
    RecordList<GltfMaterial> materialRecords; ///< every material that was made, in that order
    std::vector<GltfMaterial*> materials; ///< those that are written, by index; the default material first
    RecordList<GltfTexture> textures;
    RecordList<GltfImage> images;
    RecordList<GltfSampler> samplers;
    std::unordered_map<std::string, std::int32_t> textureByPath; ///< the first texture of each picture
    UniqueNames materialNames;
    RecordList<GltfDecal> decals;
    std::unordered_map<std::int32_t, std::int32_t> decalById;                   ///< index by the host's id
    std::unordered_map<std::int32_t, OrderedSet<std::int32_t>> componentDecals; ///< by component id
    RecordList<GltfLight> lights;
    RecordList<GltfAnimation> animations;
    std::vector<GltfScene> scenes;
    std::map<const void*, std::map<std::string, DisplayStateInfo>> displayStatesByComponent;
    std::optional<ExportedTable> designTable;
    std::vector<ExportedTable> generalTables;
    Progress progress;
};

/// Appends a fresh record to one of a document's lists and tells it its own position.
template <class Record>
Record& addRecord(RecordList<Record>& list) {
    const auto position = static_cast<std::int32_t>(list.size());
    Record& record = *list.emplace_back(std::make_unique<Record>());
    if constexpr (requires { record.index; }) {
        record.index = position;
    } else if constexpr (requires { record.id; }) {
        record.id = position;
    }
    return record;
}

/// Makes a material with the default values; it is not written until it is registered.
GltfMaterial& makeMaterial(GltfDocument& document);

/// Gives a material the next index, so that it is written, unless it has one already. Returns its index.
std::int32_t registerMaterial(GltfDocument& document, GltfMaterial& material);

} // namespace orvane
