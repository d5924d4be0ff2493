#include "document/GlbMerge.h"

#include "platform/AsciiCase.h"

namespace orvane {

namespace {

/// Ranges that follow one another in the working file become one, so that the usual export is a single copy.
void appendRange(std::vector<FileRange>& ranges, const FileRange& range) {
    if (!ranges.empty() && ranges.back().offset + ranges.back().length == range.offset) {
        ranges.back().length += range.length;
    } else if (range.length > 0) {
        ranges.push_back(range);
    }
}

std::string mimeTypeOf(const std::string& fileName) {
    const std::string extension = asciiLower(fileName.substr(fileName.rfind('.') + 1));
    return extension == "jpg" || extension == "jpeg" ? "image/jpeg" : "image/png";
}

/// The offsets of the views count on the recorded lengths of the buffers, whatever the files' own.
std::int64_t moveViews(GltfDocument& document) {
    std::vector<std::int64_t> starts;
    std::int64_t length = 0;
    for (const auto& buffer : document.buffers) {
        starts.push_back(length);
        length += buffer->byteLength;
    }
    for (const auto& view : document.bufferViews) {
        if (view->buffer >= 0) {
            view->byteOffset += starts[static_cast<std::size_t>(view->buffer)];
            view->buffer = 0;
        }
    }
    return length;
}

} // namespace

std::vector<FileRange> mergeBuffers(GltfDocument& document, WorkingBufferFolder& folder,
                                    const PictureMaker& makePicture) {
    std::vector<FileRange> ranges;
    std::int64_t length = moveViews(document);
    for (const auto& buffer : document.buffers) {
        if (const std::optional<FileRange> range = folder.find(buffer->uri)) {
            appendRange(ranges, *range);
        }
    }
    for (const auto& texture : document.textures) {
        if (texture->source < 0) {
            continue;
        }
        GltfImage& image = *document.images[static_cast<std::size_t>(texture->source)];
        const std::optional<OutputFile> picture =
            makePicture(image.sourcePath, image.name, texture->isNormalMap);
        if (!picture) {
            continue;
        }
        const FileRange range = folder.append(*picture);
        appendRange(ranges, range);
        image.mimeType = mimeTypeOf(image.name);
        image.bufferView = static_cast<std::int32_t>(document.bufferViews.size());
        GltfBufferView& view = addRecord(document.bufferViews);
        view.buffer = 0;
        view.byteOffset = length;
        view.byteLength = range.length;
        length += range.length;
    }
    document.buffers.clear();
    addRecord(document.buffers).byteLength = length;
    return ranges;
}

} // namespace orvane
