#include "document/DiskBufferFolder.h"

#include <utility>

namespace orvane {

void DiskBufferFolder::write(const std::string& name, BufferContent content, Existing existing) {
    if (report_.hasFailed()) {
        return;
    }
    OutputFile file = OutputFile::create(staged_.path());
    file.write(content.pieces);
    if (const auto fault = staged_.stage(name, std::move(file), existing)) {
        report_.fail(*fault);
    }
}

} // namespace orvane
