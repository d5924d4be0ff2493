#include "model/step/Looks.h"

namespace orvane::step {

void applyLook(const Look& look, const EntityRecord& entity, std::vector<AppearanceRecord>& appearances) {
    for (AppearanceRecord& appearance : appearances) {
        if (Look{appearance.primaryColor, appearance.transparency} == look &&
            appearance.appliedTo.front().kind == entity.kind) {
            appearance.appliedTo.push_back(entity);
            return;
        }
    }
    AppearanceRecord& appearance = appearances.emplace_back();
    appearance.primaryColor = look.color;
    appearance.transparency = look.transparency;
    appearance.hasAppliedTo = true;
    appearance.appliedTo.push_back(entity);
}

} // namespace orvane::step
