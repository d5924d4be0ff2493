#pragma once

#include "animation/MotionScene.h"
#include "embedded/EmbeddedHost.h"
#include "support/MemoryFolder.h"
#include "support/ModelBuilder.h"

#include <gmock/gmock.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace orvane {

/// A scene to be animated: the embedded host's model, and nodes that a test makes by hand.
struct MotionFixture : testing::Test {
    /// Opens `model` and shows its active configuration.
    void open(Model model) {
        host = openEmbeddedHost(std::move(model));
        modelDoc = host->activeDocument();
        configuration = modelDoc->getActiveConfiguration();
    }

    /// A node of that name below `parent`, or at the top of the scene for -1.
    GltfNode& node(const std::string& fullName, std::int32_t parent = -1) {
        GltfNode& made = addRecord(document.nodes);
        made.fullName = fullName;
        made.parent = parent;
        (parent < 0 ? scene.nodes : document.nodes[static_cast<std::size_t>(parent)]->children)
            .push_back(made.id);
        return made;
    }

    HostRef<HostTransform> transform(const Placement& placement) const {
        return host->mathUtility()->createTransform(placement);
    }

    /// The scene as it stands now.
    const MotionScene& motion() {
        names = std::make_unique<NodeNames>(document, scene);
        current.reset();
        current.emplace(MotionScene{*host, *modelDoc, *configuration, rootTransform, origins, *names,
                                    document, scene, buffers});
        return *current;
    }

    HostRef<HostApplication> host;
    HostRef<HostModelDoc> modelDoc;
    HostRef<HostConfiguration> configuration;
    HostRef<HostTransform> rootTransform;
    NodeOrigins origins;
    GltfDocument document;
    GltfScene scene;
    MemoryFolder folder;
    BufferNames bufferNames;
    ExportReport report;
    AnimationFiles files;
    ChannelTarget buffers{folder, bufferNames, report, files};
    std::unique_ptr<NodeNames> names;
    std::optional<MotionScene> current;
};

} // namespace orvane
