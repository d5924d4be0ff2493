#include "document/WorkingBufferFolder.h"

#include "platform/Files.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

/// Enough for writes that cost the system little beyond the bytes, and little enough to stay in the
/// processor's cache.
constexpr std::int64_t kMostHeld = std::int64_t{256} << 10;

std::int64_t sizeOf(const BufferContent& content) {
    std::size_t size = 0;
    for (const Bytes piece : content.pieces) {
        size += piece.size();
    }
    return static_cast<std::int64_t>(size);
}

} // namespace

WorkingBufferFolder::WorkingBufferFolder(const std::string& folder, ExportReport& report)
    : folder_(folder), report_(report), file_(OutputFile::create(folder)) {
    reportFault();
}

void WorkingBufferFolder::write(const std::string& name, BufferContent content, Existing) {
    if (report_.hasFailed()) {
        return;
    }
    const std::int64_t size = sizeOf(content);
    ranges_[name] = {file_.position() + heldSize_, size};
    heldSize_ += size;
    held_.push_back(std::move(content));
}

void WorkingBufferFolder::settle() {
    if (heldSize_ > kMostHeld) {
        writeHeld();
    }
}

void WorkingBufferFolder::writeHeld() {
    std::vector<Bytes> pieces;
    for (const BufferContent& content : held_) {
        pieces.insert(pieces.end(), content.pieces.begin(), content.pieces.end());
    }
    file_.write(pieces);
    held_.clear();
    heldSize_ = 0;
    reportFault();
}

std::optional<FileRange> WorkingBufferFolder::find(const std::string& name) const {
    const auto found = ranges_.find(name);
    return found == ranges_.end() ? std::nullopt : std::optional(found->second);
}

FileRange WorkingBufferFolder::append(const OutputFile& file) {
    writeHeld();
    const FileRange range{file_.position(), file.position()};
    file_.append(file, 0, file.position());
    reportFault();
    return range;
}

void WorkingBufferFolder::copyTo(OutputFile& target, const FileRange& range) const {
    const std::int64_t end = range.offset + range.length;
    if (range.offset < file_.position()) {
        target.append(file_, range.offset, std::min(end, file_.position()) - range.offset);
    }
    std::int64_t at = file_.position();
    for (const BufferContent& content : held_) {
        if (at >= range.offset && at < end) {
            target.write(content.pieces);
        }
        at += sizeOf(content);
    }
}

void WorkingBufferFolder::reportFault() {
    if (!file_.isGood() && !report_.hasFailed()) {
        const std::string folder = nativePath(folder_);
        report_.fail("the working file in " + (folder.empty() ? "." : folder) + " " + file_.error());
    }
}

} // namespace orvane
