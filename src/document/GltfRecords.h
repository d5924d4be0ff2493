#pragma once

#include "document/OrderedSet.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// The records of a glTF scene, as plain values. An index is the position of a record in its list, and -1
/// means none. Texts are narrow, already in the form in which they are written.
namespace orvane {

/// 0 to 8 the 3x3 rotation row by row, 9 to 11 the translation in metres, 12 the uniform scale, 13 to 15 the
/// rest.
using NodeMatrix = std::array<double, 16>;

struct GltfComment {
    std::string name;
    std::string text;
};

/// A table of texts: one header a column, one list of cells a row.
struct ExportedTable {
    std::string title;
    std::vector<std::string> headers;
    std::vector<std::vector<std::string>> rows;
};

struct CustomProperty {
    std::string name;
    std::string value;
    std::int32_t type = 0; ///< 3 number, 5 double, 11 yes or no, 30 text, 64 date
};

/// How a component looks in one display state.
struct DisplayStateInfo {
    std::int32_t hidden = 0;      ///< 1 when hidden
    std::int32_t transparent = 0; ///< 0 when transparent
    std::int32_t displayMode = 0;
    std::int32_t appearance = -1; ///< index into the materials
};

struct GltfScene {
    std::string name;
    std::vector<std::string> displayStates;        ///< all those of the scene's configuration
    std::vector<std::u16string> displayStateNames; ///< the same, as the host wants them back
    std::vector<std::int32_t> nodes;               ///< root nodes
    std::vector<std::int32_t> animations;
    std::vector<CustomProperty> customProperties;
};

struct GltfNode {
    std::int32_t id = -1;            ///< own position in the nodes
    const void* component = nullptr; ///< identity of the host's component that the node stands for, or null
    NodeMatrix matrix{};
    std::string fullName; ///< with the names of the parents and `/` between them
    std::string name;     ///< what stands behind the last `/`
    std::int32_t parent = -1;
    std::vector<std::int32_t> children;
    std::int32_t mesh = -1;
    std::int32_t camera = -1;
    std::int32_t light = -1;
    std::vector<GltfComment> comments;
    bool visible = true;
};

/// A decal of the host: a picture stuck on components. Its material and pictures are written, though no
/// primitive refers to them.
struct GltfDecal {
    std::int32_t index = -1;
    std::int32_t material = -1;    ///< index into the materials
    std::int32_t maskTexture = -1; ///< index into the textures
};

/// What gives a material its texture coordinates, by the host's numbers: the host itself, or a mapping of the
/// material's own. Any other number has none.
enum class MappingType : std::int32_t { automatic = 0, projection = 1, sphere = 2, cylinder = 3, box = 4 };

/// One appearance of the host, by the host's values. Colours have red in the low byte, then green, then blue;
/// the highest byte means nothing.
struct GltfMaterial {
    std::int32_t index = -1;  ///< position in the written materials; -1 until a primitive uses the record
    std::int32_t serial = -1; ///< position in the order of making
    const void* appearance = nullptr; ///< identity of the host's appearance, null for the default material
    const void* properties = nullptr; ///< identity of the host's material properties, or null
    std::string mname;                ///< unique in its document
    std::string tf_shader;
    std::int32_t shaderClass = 0;    ///< the class of `tf_shader`; 0 for a shader that is not known
    std::string fileName;            ///< path of the appearance file
    std::string bumpTextureFileName; ///< path of the picture that the normal map comes from
    std::string textureFileName;     ///< path of the base colour picture
    double a_emission = 0;
    std::uint32_t primaryColor = 0x7F7F7F7F;
    double a_reflectivity = 0;
    double a_specularSpread = 0;
    double a_transparency = 0; ///< 0 opaque, 1 fully transparent
    bool blurry = false;

    MappingType mappingType = MappingType::automatic;
    double width = 0, height = 0; ///< extent of the picture on the model, metres
    double offsetU = 0, offsetV = 0;
    double rotation = 0;                       ///< degrees
    float cx = 0, cy = 0, cz = 0;              ///< origin of the mapping, metres
    float uDirx = 0, uDiry = 0, uDirz = 0;     ///< direction of U
    float vDirx = 0, vDiry = 0, vDirz = 0;     ///< direction of V
    double sphereAngleA = 0, sphereAngleB = 0; ///< degrees
    bool MirrorVertical = false;
    bool MirrorHorizontal = false;

    std::int32_t baseColorTexture = -1;
    std::int32_t normalTexture = -1;

    OrderedSet<std::int32_t> decals; ///< those of the components whose faces take the material
};

struct GltfPrimitive {
    std::int32_t indices = -1;
    std::int32_t position = -1;
    std::int32_t normal = -1;
    std::int32_t texcoord = -1;
    std::int32_t material = -1;
};

struct GltfMesh {
    std::int32_t index = -1;
    std::int32_t buffer = -1;
    std::vector<GltfPrimitive> primitives;
};

enum class ComponentType : std::int32_t { unsignedShort = 5123, singleFloat = 5126 };

enum class AccessorType { scalar, vec2, vec3, vec4 };

/// Smallest x, y, z, then largest x, y, z.
using AccessorBounds = std::array<float, 6>;

struct GltfAccessor {
    std::int64_t byteOffset = 0; ///< within the buffer view
    std::int64_t count = 0;
    std::int32_t bufferView = -1;
    ComponentType componentType = ComponentType::singleFloat;
    AccessorType type = AccessorType::scalar;
    std::optional<AccessorBounds> bounds;
};

enum class BufferTarget : std::int32_t { none = 0, vertices = 34962, indices = 34963 };

struct GltfBufferView {
    std::int32_t buffer = -1;
    std::int64_t byteOffset = 0;
    std::int64_t byteLength = 0;
    std::int64_t byteStride = 0; ///< 0: none is written
    BufferTarget target = BufferTarget::none;
};

struct GltfBuffer {
    std::int32_t index = -1;
    std::string uri; ///< file name in the destination folder; empty for the buffer inside a `.glb`
    std::int64_t byteLength = 0;
};

struct GltfTexture {
    std::int32_t index = -1;
    std::int32_t sampler = -1;
    std::int32_t source = -1; ///< index into the images
    bool isNormalMap = false;
    std::string
        name; ///< shown where the picture is not embedded: its file name when this texture was settled
};

struct GltfImage {
    std::int32_t index = -1;
    std::string name;       ///< file name in the destination folder
    std::string sourcePath; ///< full path of the picture that it comes from
    std::string mimeType;   ///< of an embedded picture
    std::int32_t bufferView = -1;
};

struct GltfSampler {
    std::int32_t index = -1;
    std::int32_t magFilter = 9729;
    std::int32_t minFilter = 9729;
    std::int32_t wrapS = 10497;
    std::int32_t wrapT = 10497;
};

struct GltfCamera {
    std::int32_t index = -1; ///< a camera with a negative one is not written
    std::int32_t isPerspective = 0;
    double yfov = 0.7; ///< radians
    double aspectRatio = 1.440000057220459;
};

/// By the host's numbers. Any other number has no name in the text.
enum class LightType : std::int32_t { spot = 2, point = 3, directional = 4 };

struct GltfLight {
    std::int32_t index = -1;
    LightType type{};
    std::array<double, 3> color{};
    double spotAngle = 0; ///< radians; 0 unless the light is a spot light
    double intensity = 0;
    bool enabled = false;
};

enum class ChannelPath { translation, rotation, scale };
enum class Interpolation { linear, step, catmullRomSpline, cubicSpline };

/// A glTF animation channel and its sampler in one.
struct GltfAnimationChannel {
    std::int32_t node = -1;
    ChannelPath path = ChannelPath::translation;
    Interpolation interpolation = Interpolation::linear;
    std::int32_t input = -1;  ///< accessor of the times
    std::int32_t output = -1; ///< accessor of the values
};

struct GltfAnimation {
    std::int32_t index = -1;
    std::string name;
    std::vector<GltfAnimationChannel> channels;
};

} // namespace orvane
