#pragma once

#include "views/ViewStorageBase.h"

#include <memory>

namespace orvane {

/// Everything from which a document can be looked at: the view on the screen, the cameras in the feature
/// tree, the named views.
class ViewStorageList {
public:
    /// Makes the list, and a camera node for each entry, whose ids are appended to `cameraNodes`. The camera
    /// of the view on the screen, and those of the tree, come with `exportCameras`; views without a camera
    /// with `exportViews`. Whatever the options, each named view is shown on the screen in turn, and the last
    /// one stays there.
    ViewStorageList(const ViewOwner& owner, HostModelDoc& document, bool exportCameras, bool exportViews,
                    std::vector<std::int32_t>& cameraNodes);
    ViewStorageList(const ViewStorageList&) = delete;
    ViewStorageList& operator=(const ViewStorageList&) = delete;

    auto begin() const { return storages_.begin(); }
    auto end() const { return storages_.end(); }

private:
    template <class Storage, class Source>
    void store(std::string name, const HostRef<Source>& source, std::vector<std::int32_t>& cameraNodes);
    void storeTreeCameras(HostModelDoc& document, std::vector<std::int32_t>& cameraNodes);

    ViewOwner owner_;
    std::vector<std::unique_ptr<views::ViewStorageBase>> storages_;
};

} // namespace orvane
