#pragma once

#include "document/GltfDocument.h"
#include "host/HostApplication.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace orvane {

/// Whose views are exported, and into what. Both outlive whoever holds it.
struct ViewOwner {
    HostApplication& host;
    GltfDocument& document;
};

} // namespace orvane

namespace orvane::views {

/// Something from which a person can look at the model, with the host's state of the moment at which the
/// object was made.
class ViewStorageBase {
public:
    /// `name` is a narrow text, as it is written.
    ViewStorageBase(const ViewOwner& owner, std::string name) : owner_(owner), name_(std::move(name)) {}
    ViewStorageBase(const ViewStorageBase&) = delete;
    ViewStorageBase& operator=(const ViewStorageBase&) = delete;
    virtual ~ViewStorageBase() = default;

    /// Makes a camera and a node for it in the document, and appends the node's id to `cameraNodes`.
    virtual void createCameraNode(std::vector<std::int32_t>& cameraNodes) = 0;
    /// Puts the state back onto a view.
    virtual void restore(HostView& view) const = 0;

    const std::string& name() const { return name_; }

protected:
    ViewOwner owner_;
    std::string name_;
};

} // namespace orvane::views
