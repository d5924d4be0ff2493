#include "embedded/EmbeddedObject.h"
#include "embedded/HostAnswers.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace orvane::embedded {

namespace {

class EmbeddedFace final : public EmbeddedItem<HostFace, FaceRecord> {
public:
    using EmbeddedItem::EmbeddedItem;

    void faceTriangleCount(std::int32_t& count) const override {
        count = static_cast<std::int32_t>(record_.positions.size() / 9);
    }
    bool faceTrianglePositions(bool, std::span<float> positions) const override {
        return fill(record_.positions, positions);
    }
    bool faceTriangleNormals(std::span<float> normals) const override {
        return fill(record_.normals, normals);
    }
    bool faceTriangleTexCoords(std::span<float> texCoords) const override {
        return fill(record_.texCoords, texCoords);
    }

    HostRef<HostFeature> faceOwningFeature() const override {
        return makeFeature(session_, document_, record_.feature);
    }

    std::int32_t readFaceMark() const override {
        const auto mark = session_->faceMarks.find(&record_);
        return mark == session_->faceMarks.end() ? record_.userValue : mark->second;
    }
    void writeFaceMark(std::int32_t mark) override { session_->faceMarks[&record_] = mark; }

private:
    /// Numbers that the record does not hold are zeros.
    static bool fill(const std::vector<float>& source, std::span<float> target) {
        const std::size_t count = std::min(source.size(), target.size());
        std::ranges::copy_n(source.begin(), static_cast<std::ptrdiff_t>(count), target.begin());
        std::ranges::fill(target.subspan(count), 0.0f);
        return true;
    }
};

class EmbeddedBody final : public EmbeddedItem<HostBody, BodyRecord> {
public:
    using EmbeddedItem::EmbeddedItem;

    std::u16string bodyName() const override { return record_.name; }
    std::int32_t bodyFaceCount() const override { return countOf(record_.faces); }
    std::vector<HostRef<HostFace>> bodyFaces(std::int32_t count) const override {
        const std::size_t wanted =
            std::min(record_.faces.size(), static_cast<std::size_t>(std::max(count, 0)));
        std::vector<HostRef<HostFace>> faces;
        faces.reserve(wanted);
        for (std::size_t i = 0; i < wanted; ++i) {
            faces.push_back(makeFace(session_, document_, record_.faces[i]));
        }
        return faces;
    }
};

class EmbeddedBodyEnumerator final : public HostBodyEnumerator {
public:
    EmbeddedBodyEnumerator(SessionRef session, const ModelDocument& document,
                           std::vector<const BodyRecord*> bodies)
        : session_(std::move(session)), document_(document), bodies_(std::move(bodies)) {}

    HostRef<HostBody> nextBody() override {
        return next_ < bodies_.size() ? makeBody(session_, document_, *bodies_[next_++])
                                      : HostRef<HostBody>();
    }
    void reset() override { next_ = 0; }

private:
    SessionRef session_;
    const ModelDocument& document_;
    std::vector<const BodyRecord*> bodies_;
    std::size_t next_ = 0;
};

/// Type codes of the host; every body that is no solid has one of its own.
std::int32_t typeCode(BodyKind kind) {
    switch (kind) {
    case BodyKind::solid:
        return kSolidBody;
    case BodyKind::surface:
        return 1;
    case BodyKind::wire:
        return 2;
    }
    return -1;
}

} // namespace

HostRef<HostBody> makeBody(const SessionRef& session, const ModelDocument& document, const BodyRecord& body) {
    return makeHostObject<EmbeddedBody>(session, document, body);
}

HostRef<HostFace> makeFace(const SessionRef& session, const ModelDocument& document, const FaceRecord& face) {
    return makeHostObject<EmbeddedFace>(session, document, face);
}

std::vector<const BodyRecord*> existingBodies(const EmbeddedSession& session, const ModelDocument& part) {
    const ConfigurationRecord& configuration = session.configurationOf(part);
    std::unordered_set<std::u16string_view> existing;
    if (configuration.bodies) {
        existing.insert(configuration.bodies->begin(), configuration.bodies->end());
    }
    std::vector<const BodyRecord*> bodies;
    for (const BodyRecord& body : part.bodies) {
        if (!configuration.bodies || existing.contains(body.name)) {
            bodies.push_back(&body);
        }
    }
    return bodies;
}

HostRef<HostBodyEnumerator> makeBodyEnumerator(const SessionRef& session, const ModelDocument& document,
                                               std::int32_t bodyType, bool visibleOnly) {
    if (document.kind != DocumentKind::part) {
        return {};
    }
    std::vector<const BodyRecord*> bodies = existingBodies(*session, document);
    std::erase_if(bodies, [&](const BodyRecord* body) {
        return typeCode(body->kind) != bodyType || (visibleOnly && !body->visible);
    });
    return makeHostObject<EmbeddedBodyEnumerator>(session, document, std::move(bodies));
}

} // namespace orvane::embedded
