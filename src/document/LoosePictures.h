#pragma once

#include "document/GltfDocument.h"

#include <functional>
#include <string>

namespace orvane {

/// Brings the picture at `sourcePath` into a folder as a file named `name`, which may change when the picture
/// is converted. Gives the path of the file that came into being; empty when none did, of which the copier
/// tells whom it has to.
using PictureCopier =
    std::function<std::string(const std::string& sourcePath, std::string& name, bool isNormalMap)>;

/// Settles the names of the pictures that are not embedded, in the order of the textures, and brings them
/// into the folder of `copyPicture`. Each texture that is written without an embedded picture has its picture
/// named and copied anew: a normal map's name gets `n_` in front, and the copier may change it further. The
/// texture shows the name as it is then, the picture the last one.
void settleLoosePictures(GltfDocument& document, const PictureCopier& copyPicture);

} // namespace orvane
