#include "appearance/FaceMarks.h"

namespace orvane::appearance {

namespace {

constexpr std::uint32_t kPattern = 0xFACE;

std::uint32_t faceMarkCounter = 0;

} // namespace

std::int32_t faceMark(HostFace& face, bool create) {
    const std::int32_t value = face.readFaceMark();
    if ((static_cast<std::uint32_t>(value) & kPattern) == kPattern) {
        return value;
    }
    if (!create) {
        return kNoFaceMark;
    }
    const auto mark = static_cast<std::int32_t>(faceMarkCounter++ << 16 | kPattern);
    face.writeFaceMark(mark);
    return mark;
}

void reportLostMark(std::int32_t mark, ExportReport& report) {
    if (mark < 0) {
        report.warn("more than 32,768 faces take the appearance of their own, of a body or of a feature; "
                    "the others lose it");
    }
}

} // namespace orvane::appearance
