#pragma once

#include "document/GltfDocument.h"
#include "document/TextStream.h"

#include <functional>
#include <string>

/// One writer for each glTF record. Each appends to the stream; unless said otherwise it ends without a line
/// feed, and what separates records is added by the caller. No text is ever escaped.
namespace orvane {

/// Brings the picture at `sourcePath` into the destination folder as a file named `name`, which may change
/// when the picture is converted. Stays silent when it cannot.
using PictureCopier = std::function<void(const std::string& sourcePath, std::string& name, bool isNormalMap)>;

/// Ends with a line feed.
void writeNode(TextStream& out, const GltfDocument& document, const GltfNode& node);
/// Whether strict readers take the node's text. The comments of a node that has a mesh, a camera, children or
/// a placement, but no light, begin with a comma that they refuse.
bool isStrictJson(const GltfNode& node);
/// Ends with a line feed.
void writeCamera(TextStream& out, const GltfCamera& camera);
void writeLight(TextStream& out, const GltfLight& light);
void writeAnimation(TextStream& out, const GltfAnimation& animation);
void writeMesh(TextStream& out, const GltfMesh& mesh);
void writeAccessor(TextStream& out, const GltfAccessor& accessor);
/// Where the texture's picture is not embedded, this is the moment at which it is brought into the
/// destination folder; its image's `name` then keeps the name of that file. A texture without sampler or
/// picture appends nothing.
void writeTexture(TextStream& out, GltfDocument& document, const GltfTexture& texture,
                  const PictureCopier& copyPicture);
void writeImage(TextStream& out, const GltfImage& image);
void writeSampler(TextStream& out, const GltfSampler& sampler);
void writeBufferView(TextStream& out, const GltfBufferView& view);
void writeBuffer(TextStream& out, const GltfBuffer& buffer);

} // namespace orvane
