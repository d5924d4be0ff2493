#include "platform/MadeFolder.h"

#include "platform/Files.h"

#include <utility>

namespace orvane {

MadeFolder::MadeFolder(std::string path)
    : path_(std::move(path)),
      leaving_([](void* folder) noexcept { static_cast<MadeFolder*>(folder)->takeAway(); }, this) {
    const Undisturbed scope;
    isMade_ = createFolder(path_, error_) == FolderResult::created;
}

MadeFolder::~MadeFolder() {
    takeAway();
}

void MadeFolder::takeAway() noexcept {
    if (isMade_ && !removeEmptyFolder(path_)) {
        removeEmptyFolder(path_); // once more, if it was not for something in it
    }
}

} // namespace orvane
