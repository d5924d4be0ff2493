#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The embedded host's picture of a model: plain records, filled by the readers and never changed afterwards.
/// Lengths are metres, angles degrees, times seconds unless told otherwise. Texts are UTF-16 as the host
/// answers them.
namespace orvane {

using Vector3 = std::array<double, 3>;

/// 0 to 8 the rotation block row by row for row vectors, 9 to 11 the translation, 12 the scale, 13 to 15 the
/// rest.
using Placement = std::array<double, 16>;
inline constexpr Placement kIdentityPlacement = {1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0};

struct ModelDocument;

/// Triangles of one face, three vertices each, never welded: 9, 9 and 6 numbers a triangle.
struct FaceRecord {
    std::vector<float> positions;
    std::vector<float> normals;   ///< as long as `positions`
    std::vector<float> texCoords; ///< two thirds of `positions`, or empty: all zeros
    std::int32_t feature = -1;    ///< position in the document's `features`, flattened depth first; -1 none
    std::int32_t userValue = 0;
};

enum class BodyKind { solid, surface, wire };

struct BodyRecord {
    std::u16string name;
    BodyKind kind = BodyKind::solid;
    bool visible = true;
    std::vector<FaceRecord> faces;
};

struct CustomPropertyRecord {
    std::u16string name;
    std::u16string value;
    std::int32_t type = 30;
};

/// What a display state says of components, by full name.
struct DisplayStateRecord {
    std::u16string name;
    std::vector<std::u16string> hidden;
    std::vector<std::u16string> shown;
};

struct NamedPlacement {
    std::u16string component; ///< full name
    Placement placement = kIdentityPlacement;
};

struct ConfigurationRecord {
    std::u16string name;
    std::vector<DisplayStateRecord> displayStates;
    std::vector<CustomPropertyRecord> customProperties;
    std::vector<std::u16string> suppressed;
    std::vector<std::u16string> hidden;
    std::vector<std::u16string> shown;
    std::vector<NamedPlacement> placements;
    std::optional<std::vector<std::u16string>> bodies; ///< names; nothing: all of them
    std::optional<std::int32_t> explodeSteps;
};

/// By the numbers of a model document, which may hold other ones too.
enum class MappingKind : std::int32_t { automatic = 0, projection = 1, sphere = 2, cylinder = 3, box = 4 };

struct MappingRecord {
    MappingKind type = MappingKind::automatic;
    double width = 0, height = 0, offsetU = 0, offsetV = 0, rotation = 0;
    Vector3 center{}, uDirection{}, vDirection{};
    double sphereAngleA = 0, sphereAngleB = 0;
    bool mirrorVertical = false, mirrorHorizontal = false;
};

enum class EntityKind { document, body, feature, face, component };

/// One entity that an appearance is applied to.
struct EntityRecord {
    EntityKind kind = EntityKind::document;
    std::int32_t body = -1;    ///< position in `bodies`, for a body or a face
    std::int32_t face = -1;    ///< position in the body's `faces`, for a face
    std::int32_t feature = -1; ///< position among the features, flattened depth first
    std::u16string component;  ///< full name in the document that lists the appearance
};

/// Colours are 0x00BBGGRR. File names are absolute system paths in UTF-8, empty when there is none; they may
/// be missing.
struct AppearanceRecord {
    std::string file, texture, bumpTexture;
    std::uint32_t primaryColor = 0x7F7F7F, secondaryColor = 0, tertiaryColor = 0, specularColor = 0;
    double emission = 0, reflectivity = 0, specularSpread = 0, specular = 0, transparency = 0;
    MappingRecord mapping;
    bool hasAppliedTo = false;
    std::vector<EntityRecord> appliedTo;
    std::vector<std::u16string> configurations; ///< listed only while one of them is active; empty: always
    std::vector<std::u16string> displayStates;
};

struct DecalRecord {
    std::int32_t id = 0;
    std::optional<AppearanceRecord> appearance;
    std::string maskFile;
    bool maskInvert = false;
    std::vector<std::int32_t> ids;
};

struct CameraRecord {
    Vector3 position{}, up{}, direction{};
    double aspect = 1.5;
    double fieldOfView = 0; ///< radians
    bool perspective = true;
};

struct ViewRecord {
    std::u16string name;
    std::int32_t mode = 0;
    Placement orientation = kIdentityPlacement;
    double scale = 1;
    Vector3 translation{}, eyePoint{};
    double planeDistance = 1;
    bool perspective = false, perspectiveAllowed = true;
    Placement transform = kIdentityPlacement;
    std::int32_t width = 1024, height = 768;
    std::optional<CameraRecord> camera;
};

/// By the numbers of a model document, which may hold other ones too.
enum class LightKind : std::int32_t { ambient = 1, spot = 2, point = 3, directional = 4 };

struct LightRecord {
    std::u16string name, userName;
    LightKind type{};
    double level = 0;
    Vector3 color{1, 1, 1};
    Vector3 position{}, direction{};
    double coneAngle = 0;
    Vector3 attenuation{};
    double intensity = 0;
    bool on = true;
};

struct TrackKey {
    double time = 0;
    Placement placement = kIdentityPlacement;
};

enum class TrackInterpolation { linear, step };

struct TrackRecord {
    std::u16string component;
    TrackInterpolation interpolation = TrackInterpolation::linear;
    std::vector<TrackKey> keys; ///< in time order
};

struct MotionStudyRecord {
    std::u16string name;
    double duration = 0;
    std::int32_t frameRate = 24;
    double time = 0;
    std::vector<TrackRecord> tracks;
};

struct ExplodeStepRecord {
    std::vector<std::u16string> components;
    Vector3 translate{};
};

struct ExplodedViewRecord {
    std::u16string name;
    std::int32_t frameRate = 24;
    std::vector<ExplodeStepRecord> steps;
};

struct TableRecord {
    std::optional<std::u16string> title;
    std::vector<std::optional<std::u16string>> headers;
    std::vector<std::vector<std::optional<std::u16string>>> rows;
    std::int32_t startRow = 0, startColumn = 0; ///< design tables only
    bool attach = true;                         ///< design tables only
};

/// The type of an annotation that holds a table, by the host's number.
inline constexpr std::int32_t kTableAnnotationType = 14;

struct AnnotationRecord {
    std::int32_t type = kTableAnnotationType;
    std::optional<TableRecord> table;
};

struct CommentRecord {
    std::u16string name, text;
};

/// What a feature's definition says: whether its faces may take the look of its seeds.
struct FeatureDefinitionRecord {
    bool propagate = false;
    std::vector<std::int32_t> seeds; ///< features, flattened depth first; -1: a seed that is no feature
};

struct FeatureRecord {
    std::u16string name;
    std::u16string type = u"Feature";
    std::int32_t parent = -1; ///< the feature that holds this one; -1 at the top of the tree
    std::optional<CameraRecord> camera;
    std::vector<CommentRecord> comments;
    std::optional<FeatureDefinitionRecord> definition;
};

struct ComponentRecord {
    std::u16string name;                     ///< leaf name, without '/'
    const ModelDocument* document = nullptr; ///< the document that it shows, or null
    std::optional<std::int32_t> id;
    std::optional<Placement> placement =
        kIdentityPlacement; ///< relative to the parent; nothing: none is answered
    std::optional<Placement> placementFallback;
    bool loaded = true, suppressed = false, hidden = false;
    std::int32_t state = 3; ///< 0 suppressed, 1 lightweight, 2 fully resolved, 3 resolved
    std::optional<std::vector<ComponentRecord>>
        components; ///< nothing: those of `document`, where it is an assembly
    std::vector<DecalRecord> decals;
};

struct RootRecord {
    std::u16string name;
    std::int32_t id = 0;
    Placement placement = kIdentityPlacement;
};

enum class DocumentKind { part, assembly };

/// One part or assembly document.
struct ModelDocument {
    DocumentKind kind = DocumentKind::part;
    std::u16string path; ///< absolute, with `\` between folders on every system
    std::u16string title;
    std::vector<ConfigurationRecord> configurations; ///< at least one
    std::size_t activeConfiguration = 0;
    std::vector<BodyRecord> bodies;          ///< of a part
    RootRecord root;                         ///< of an assembly
    std::vector<ComponentRecord> components; ///< of an assembly: the root's children
    std::vector<FeatureRecord> features;     ///< the feature tree flattened depth first
    std::vector<AppearanceRecord> appearances;
    std::vector<DecalRecord> decals;
    std::optional<ViewRecord> view;
    std::vector<ViewRecord> namedViews;
    std::vector<LightRecord> lights;
    std::vector<MotionStudyRecord> motionStudies;
    std::vector<ExplodedViewRecord> explodedViews;
    std::optional<TableRecord> designTable;
    std::vector<AnnotationRecord> annotations;
    std::optional<std::array<double, 6>> box; ///< x0 y0 z0 x1 y1 z1
};

/// A model as it is opened: its own document and every document that it refers to, each once, in depth-first
/// order of first mention, and what a person should be told although the model can be used (one line of UTF-8
/// each).
struct Model {
    std::vector<std::unique_ptr<ModelDocument>> documents; ///< the opened one first
    std::vector<std::string> warnings;
};

} // namespace orvane
