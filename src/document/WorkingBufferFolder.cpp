#include "document/WorkingBufferFolder.h"

namespace orvane {

WorkingBufferFolder::WorkingBufferFolder(const std::string& folder, ExportReport& report)
    : folder_(folder), report_(report), file_(OutputFile::createNameless(folder)) {
    reportFault();
}

void WorkingBufferFolder::write(const std::string& name, std::span<const Bytes> pieces) {
    if (report_.hasFailed()) {
        return;
    }
    const std::int64_t start = file_.position();
    file_.write(pieces);
    ranges_[name] = {start, file_.position() - start};
    reportFault();
}

std::optional<FileRange> WorkingBufferFolder::find(const std::string& name) const {
    const auto found = ranges_.find(name);
    return found == ranges_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<FileRange> WorkingBufferFolder::appendFile(const std::string& path) {
    const std::int64_t start = file_.position();
    const std::optional<std::int64_t> length = file_.appendFile(path);
    reportFault();
    return length ? std::optional(FileRange{start, *length}) : std::nullopt;
}

void WorkingBufferFolder::reportFault() {
    if (!file_.isGood() && !report_.hasFailed()) {
        const std::string folder = nativePath(folder_);
        report_.errors.push_back("the working file in " + (folder.empty() ? "." : folder) + " " + file_.error());
    }
}

} // namespace orvane
