#pragma once

#include "model/step/RecordBytes.h"
#include "model/step/StepRecords.h"

/// Which members of the records pass from process to process.
namespace orvane {

template <class Archive>
void exchange(Archive& archive, FaceRecord& face) {
    archive(face.positions, face.normals, face.texCoords);
}

template <class Archive>
void exchange(Archive& archive, BodyRecord& body) {
    archive(body.name, body.visible, body.faces);
}

template <class Archive>
void exchange(Archive& archive, EntityRecord& entity) {
    archive(entity.kind, entity.body, entity.face);
}

template <class Archive>
void exchange(Archive& archive, AppearanceRecord& appearance) {
    archive(appearance.primaryColor, appearance.transparency, appearance.hasAppliedTo, appearance.appliedTo);
}

} // namespace orvane

namespace orvane::step {

template <class Archive>
void exchange(Archive& archive, Look& look) {
    archive(look.color, look.transparency);
}

template <class Archive>
void exchange(Archive& archive, InstanceColor& color) {
    archive(color.path, color.look);
}

template <class Archive>
void exchange(Archive& archive, StepInstance& instance) {
    archive(instance.product, instance.name, instance.isReference, instance.placement, instance.isHidden,
            instance.look, instance.colors);
}

template <class Archive>
void exchange(Archive& archive, StepProduct& product) {
    archive(product.name, product.isAssembly, product.instances, product.externalFile, product.part);
}

template <class Archive>
void exchange(Archive& archive, StepTree& tree) {
    archive(tree.products, tree.instances, tree.roots, tree.partCount, tree.warnings);
}

template <class Archive>
void exchange(Archive& archive, StepPart& part) {
    archive(part.bodies, part.appearances, part.warnings, part.hasShape);
}

} // namespace orvane::step
