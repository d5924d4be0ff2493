#pragma once

#include "document/GltfDocument.h"
#include "platform/OutputFile.h"

#include <functional>
#include <optional>
#include <string>

namespace orvane {

/// Makes a file of the picture at `sourcePath`, of which `name` is the name; it changes when the picture is
/// converted. Gives nothing where that fails, of which the maker tells whom it has to.
using PictureMaker = std::function<std::optional<OutputFile>(const std::string& sourcePath, std::string& name,
                                                             bool isNormalMap)>;

/// Brings the picture at `sourcePath` into a folder as a file named `name`, which may change. It tells whom
/// it has to where it does not.
using PictureCopier = std::function<void(const std::string& sourcePath, std::string& name, bool isNormalMap)>;

/// Settles the names of the pictures that are not embedded, in the order of the textures, and brings them
/// into the folder of `copyPicture`. Each texture that is written without an embedded picture has its picture
/// named and copied anew: a normal map's name gets `n_` in front, and the copier may change it further. The
/// texture shows the name as it is then, the picture the last one.
void settleLoosePictures(GltfDocument& document, const PictureCopier& copyPicture);

} // namespace orvane
