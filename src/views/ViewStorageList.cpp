#include "views/ViewStorageList.h"

#include "document/AsciiNames.h"
#include "views/CameraStorage.h"
#include "views/ViewStorage.h"

namespace orvane {

namespace {

HostRef<HostCamera> activeCameraOf(const HostRef<HostView>& view) {
    return view ? view->activeCamera() : HostRef<HostCamera>();
}

} // namespace

template <class Storage, class Source>
void ViewStorageList::store(std::string name, const HostRef<Source>& source,
                            std::vector<std::int32_t>& cameraNodes) {
    views::ViewStorageBase& storage =
        *storages_.emplace_back(std::make_unique<Storage>(owner_, std::move(name), source));
    storage.createCameraNode(cameraNodes);
}

/// The host keeps its cameras in a folder of the tree, one level below the top.
void ViewStorageList::storeTreeCameras(HostModelDoc& document, std::vector<std::int32_t>& cameraNodes) {
    for (HostRef<HostFeature> top = document.firstFeature(); top; top = top->nextFeature()) {
        for (HostRef<HostFeature> sub = top->firstSubFeature(); sub; sub = sub->nextSubFeature()) {
            if (const auto camera = inRole<HostCamera>(sub->specificFeature())) {
                store<views::CameraStorage>(toAsciiName(sub->featureName()), camera, cameraNodes);
            }
        }
    }
}

ViewStorageList::ViewStorageList(const ViewOwner& owner, HostModelDoc& document, bool exportCameras,
                                 bool exportViews, std::vector<std::int32_t>& cameraNodes)
    : owner_(owner) {
    const HostRef<HostView> current = document.activeView();
    const HostRef<HostCamera> activeCamera = activeCameraOf(current);
    if (current && !activeCamera && exportViews) {
        store<views::ViewStorage>("current", current, cameraNodes);
    } else if (activeCamera && exportCameras) {
        store<views::CameraStorage>("current", activeCamera, cameraNodes);
    }
    if (exportCameras) {
        storeTreeCameras(document, cameraNodes);
    }
    for (const std::u16string& name : document.listNamedViews(document.countNamedViews())) {
        document.showNamedView(name);
        const HostRef<HostView> view = document.activeView();
        if (view && !activeCameraOf(view) && exportViews) {
            store<views::ViewStorage>(toAsciiName(name), view, cameraNodes);
        }
    }
}

} // namespace orvane
