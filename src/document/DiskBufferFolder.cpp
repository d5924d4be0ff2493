#include "document/DiskBufferFolder.h"

#include "platform/Files.h"

#include <utility>

namespace orvane {

DiskBufferFolder::DiskBufferFolder(std::string folder, ExportReport& report)
    : folder_(std::move(folder)), report_(report) {}

DiskBufferFolder::~DiskBufferFolder() {
    for (const std::string& path : written_) {
        removeFile(path);
    }
}

bool DiskBufferFolder::contains(const std::string& name) const {
    return canOpenForReading(joinPath(folder_, name));
}

void DiskBufferFolder::write(const std::string& name, BufferContent content) {
    if (report_.hasFailed()) {
        return;
    }
    const std::string path = joinPath(folder_, name);
    OutputFile file = OutputFile::create(path);
    if (file.isGood()) {
        written_.push_back(path);
    }
    file.write(content.pieces);
    if (!file.close()) {
        report_.fail(nativePath(path) + " " + file.error());
    }
}

} // namespace orvane
