#include "document/AnimationWriter.h"

#include <string_view>

namespace orvane::document {

namespace {

std::string_view interpolationName(Interpolation interpolation) {
    switch (interpolation) {
    case Interpolation::linear:
        return "LINEAR";
    case Interpolation::step:
        return "STEP";
    case Interpolation::catmullRomSpline:
        return "CATMULLROMSPLINE";
    case Interpolation::cubicSpline:
        return "CUBICSPLINE";
    }
    return "";
}

std::string_view pathName(ChannelPath path) {
    switch (path) {
    case ChannelPath::translation:
        return "translation";
    case ChannelPath::rotation:
        return "rotation";
    case ChannelPath::scale:
        return "scale";
    }
    return "";
}

} // namespace

void writeAnimation(TextStream& out, const GltfAnimation& animation) {
    const std::size_t count = animation.channels.size();
    out << "\t\t\t\t{\n"
        << "\t\t\t\t\t\"name\" : \"" << animation.name << "\",\n"
        << "\t\t\t\t\t\"samplers\" : [\n";
    for (std::size_t i = 0; i < count; ++i) {
        const GltfAnimationChannel& channel = animation.channels[i];
        out << "\t\t\t\t\t{\n"
            << "\t\t\t\t\t\t\"input\" : " << channel.input << ",\n"
            << "\t\t\t\t\t\t\"interpolation\" : \"" << interpolationName(channel.interpolation) << "\",\n"
            << "\t\t\t\t\t\t\"output\" :" << channel.output << "\n"
            << "\t\t\t\t\t}" << (i + 1 < count ? "," : "") << "\n";
    }
    out << "\t\t\t\t\t],\n"
        << "\t\t\t\t\t\"channels\" : [\n";
    for (std::size_t i = 0; i < count; ++i) {
        const GltfAnimationChannel& channel = animation.channels[i];
        out << "\t\t\t\t\t{\n"
            << "\t\t\t\t\t\t\"sampler\" : " << static_cast<std::int64_t>(i) << ",\n"
            << "\t\t\t\t\t\t\"target\" : {\n"
            << "\t\t\t\t\t\t\t\"node\" : " << channel.node << ",\n"
            << "\t\t\t\t\t\t\t\"path\" : \"" << pathName(channel.path) << "\"\n"
            << "\t\t\t\t\t\t}\n"
            << "\t\t\t\t\t}" << (i + 1 < count ? "," : "") << "\n";
    }
    out << "\t\t\t\t\t]\n"
        << "\t\t\t\t}";
}

} // namespace orvane::document
