#pragma once

#include "export/ExportOptions.h"

#include <string>

namespace orvane {

/// What an export is asked for. Paths are narrow, with `\` or `/` between folders, and empty between exports.
struct ExportRequest {
    std::string saveAsPath{};      ///< full path from the host's Save As; goes first
    std::string exportPath{};      ///< full path from any other caller
    std::string appearanceFile{};  ///< an appearance to render instead of the model
    std::string appearanceImage{}; ///< the picture file of that rendering
    bool mayReplace = true;        ///< whether a result that is there already gives way
};

/// Where an export goes.
struct ExportTarget {
    std::string destinationFolder;    ///< ends in `\`
    std::string destinationFolderPre; ///< the same without the folder that a text export gets for itself
    std::string fileName;             ///< without extension, safe for a file name
    std::string fileExtension;        ///< without the dot

    bool isBinary() const { return fileExtension == "glb"; }
    /// The name of the file that is written: `.glb` for a binary export, `.gltf` for every other extension.
    std::string fullFileName() const { return fileName + (isBinary() ? ".glb" : ".gltf"); }
    std::string file() const { return destinationFolder + fullFileName(); }
};

/// Works out names and folders: from `saveAsPath`, else from `exportPath`, else from the document's title and
/// the options. A text export lands in a folder of its own, named after the file, inside the chosen one.
ExportTarget resolveTarget(const ExportRequest& request, const ExportOptions& options,
                           const std::string& title);

/// Cuts a path behind the last whole `.extension` in it, so that what a host appended is gone. All in lower
/// case. Empty when the path does not hold that suffix.
std::string cutAfterExtension(const std::string& path, const std::string& extension);

} // namespace orvane
