#include "embedded/ShownBox.h"

#include "embedded/PlacementMath.h"

#include <algorithm>
#include <limits>

namespace orvane::embedded {

namespace {

class GrowingBox {
public:
    void add(const Vector3& point) {
        for (std::size_t i = 0; i < 3; ++i) {
            box_[i] = std::min(box_[i], point[i]);
            box_[3 + i] = std::max(box_[3 + i], point[i]);
        }
        isEmpty_ = false;
    }
    std::optional<HostBox> box() const { return isEmpty_ ? std::nullopt : std::optional(box_); }

private:
    static constexpr double kFar = std::numeric_limits<double>::max();
    HostBox box_ = {kFar, kFar, kFar, -kFar, -kFar, -kFar};
    bool isEmpty_ = true;
};

/// `placement` is null for a part by itself.
void addPart(const EmbeddedSession& session, const ModelDocument& part, const Placement* placement,
             GrowingBox& box) {
    for (const BodyRecord* body : existingBodies(session, part)) {
        if (!body->visible) {
            continue;
        }
        for (const FaceRecord& face : body->faces) {
            for (std::size_t at = 0; at + 2 < face.positions.size(); at += 3) {
                const Vector3 point = {face.positions[at], face.positions[at + 1], face.positions[at + 2]};
                box.add(placement ? transformPoint(*placement, point) : point);
            }
        }
    }
}

} // namespace

std::optional<HostBox> shownBox(EmbeddedSession& session, const ModelDocument& document) {
    if (document.box) {
        return document.box;
    }
    GrowingBox box;
    if (document.kind == DocumentKind::part) {
        addPart(session, document, nullptr, box);
        return box.box();
    }
    const ComponentInstances& components = session.componentsOf(document);
    for (std::int32_t i = 1; i < components.count(); ++i) {
        const ComponentInstance& instance = components.at(i);
        const ModelDocument* part = instance.component->document;
        if (part && part->kind == DocumentKind::part && instance.isLoaded() && !instance.suppressed &&
            !instance.hidden) {
            const Placement placement = components.inRootSpace(i, instance.restPlacement());
            addPart(session, *part, &placement, box);
        }
    }
    return box.box();
}

} // namespace orvane::embedded
