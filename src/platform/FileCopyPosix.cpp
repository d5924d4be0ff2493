#include "platform/FileCopy.h"

#include "platform/Files.h"
#include "platform/OutputFile.h"
#include "platform/RegularFilePosix.h"

namespace orvane {

namespace {

bool sameContent(const std::string& a, const std::string& b) {
    const platform::RegularFile first(a);
    const platform::RegularFile second(b);
    if (!first.isOpen() || !second.isOpen() || first.size() != second.size()) {
        return false;
    }
    constexpr std::int64_t kChunk = std::int64_t{1} << 20;
    for (std::int64_t at = 0; at < first.size(); at += kChunk) {
        if (first.read(at, kChunk) != second.read(at, kChunk)) {
            return false;
        }
    }
    return true;
}

} // namespace

CopyResult copyToNewFile(const std::string& source, const std::string& target, std::string& error) {
    if (const platform::RegularFile file(source); !file.isOpen()) {
        error = file.error();
        return CopyResult::failed;
    }
    OutputFile copy = OutputFile::createNew(target);
    if (!copy.isGood()) {
        error = copy.error();
        return !pathExists(target) ? CopyResult::failed
                                   : (sameContent(source, target) ? CopyResult::same : CopyResult::existed);
    }
    const bool isCopied = copy.appendFile(source).has_value() && copy.keep();
    error = copy.isGood() ? "cannot be read" : copy.error();
    return isCopied ? CopyResult::copied : CopyResult::failed;
}

} // namespace orvane
