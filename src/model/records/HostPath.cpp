#include "model/records/HostPath.h"

#include "platform/NarrowText.h"

#include <algorithm>

namespace orvane {

std::u16string toHostPath(const std::filesystem::path& file) {
    std::u16string text = fromSystemNarrow(std::filesystem::absolute(file).lexically_normal().string());
    std::ranges::replace(text, u'/', u'\\');
    return text;
}

} // namespace orvane
