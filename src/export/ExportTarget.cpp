#include "export/ExportTarget.h"

#include "document/AsciiNames.h"
#include "platform/AsciiCase.h"
#include "platform/Files.h"
#include "platform/NarrowText.h"

namespace orvane {

namespace {

/// Cuts `name` at its last dot and gives what stood behind it; without a dot `name` stays and the answer is
/// empty.
std::string splitExtension(std::string& name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string::npos) {
        return {};
    }
    std::string extension = name.substr(dot + 1);
    name.erase(dot);
    return extension;
}

} // namespace

ExportTarget resolveTarget(const ExportRequest& request, const ExportOptions& options,
                           const std::string& title) {
    ExportTarget target;
    std::string basePath;
    const std::string& path = request.saveAsPath.empty() ? request.exportPath : request.saveAsPath;
    if (!path.empty()) {
        std::size_t separator = path.rfind('\\');
        if (separator == std::string::npos) {
            separator = path.rfind('/');
        }
        if (separator == std::string::npos) {
            basePath = currentFolder();
            target.fileName = path;
        } else {
            basePath = path.substr(0, separator);
            target.fileName = path.substr(separator + 1);
        }
        target.fileExtension = splitExtension(target.fileName);
    } else {
        target.fileName = title;
        splitExtension(target.fileName);
        target.fileExtension = options.defaultBinary != 0 ? "glb" : "gltf";
        basePath = toSystemNarrow(options.destinationDirectory);
    }
    fileSafeName(target.fileName);
    target.destinationFolder = basePath + "\\";
    target.destinationFolderPre = target.destinationFolder;
    if (target.fileExtension == "gltf") {
        target.destinationFolder += target.fileName + "\\";
    }
    return target;
}

std::string cutAfterExtension(const std::string& path, const std::string& extension) {
    std::string lower = asciiLower(path);
    const std::string suffix = asciiLower("." + extension);
    const std::size_t at = lower.rfind(suffix);
    return at == std::string::npos ? std::string() : lower.substr(0, at + suffix.size());
}

} // namespace orvane
