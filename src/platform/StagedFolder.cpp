#include "platform/StagedFolder.h"

#include "platform/Files.h"

#include <algorithm>
#include <ranges>
#include <utility>

namespace orvane {

namespace {

std::string faultOf(const std::string& path, std::string_view what) {
    return nativePath(path) + " " + std::string(what);
}

} // namespace

StagedFolder::StagedFolder(std::string folder, bool isNew)
    : folder_(std::move(folder)), isNew_(isNew),
      leaving_([](void* staged) noexcept { static_cast<StagedFolder*>(staged)->withdraw(); }, this) {}

StagedFolder::~StagedFolder() {
    const Undisturbed scope;
    withdraw();
}

bool StagedFolder::contains(const std::string& name) const {
    return isStaged(name) || (!isNew_ && nameIsTaken(folder_ + name));
}

bool StagedFolder::holdsSame(const std::string& name, const OutputFile& file) const {
    const auto staged = byName_.find(name);
    return staged != byName_.end() && files_[staged->second].isOpen ? file.equals(files_[staged->second].file)
                                                                    : file.equals(folder_ + name);
}

StagedFolder::StagedFile& StagedFolder::add(const std::string& name, OutputFile file, Existing existing) {
    std::string path = folder_ + name;
    const Undisturbed scope;
    const auto [entry, isNew] = byName_.try_emplace(name, files_.size());
    if (isNew) {
        files_.push_back({std::move(path), std::move(file), existing});
    } else {
        StagedFile& earlier = files_[entry->second];
        openCount_ -= earlier.isOpen ? 1 : 0;
        if (earlier.isPlaced) {
            removeFile(path);
        }
        earlier = {std::move(path), std::move(file), existing};
    }
    ++openCount_;
    return files_[entry->second];
}

std::optional<std::string> StagedFolder::stage(const std::string& name, OutputFile file, Existing existing) {
    if (!file.isGood()) {
        return faultOf(folder_ + name, file.error());
    }
    const Undisturbed scope;
    StagedFile& staged = add(name, std::move(file), existing);
    if (openCount_ <= manyOpenFiles()) {
        return std::nullopt;
    }
    // Too many to be kept open until all are complete.
    --openCount_;
    staged.isOpen = false;
    if (existing == Existing::stays) {
        return place(staged);
    }
    return staged.file.setAside(staged.path) ? std::nullopt
                                             : std::optional(faultOf(staged.path, staged.file.error()));
}

std::optional<std::string> StagedFolder::placeAll(const std::string& lastName, OutputFile file,
                                                  Existing existing) {
    if (!file.isGood()) {
        return faultOf(folder_ + lastName, file.error());
    }
    const Undisturbed scope;
    StagedFile& last = add(lastName, std::move(file), existing);
    std::optional<std::string> fault = prepare(last);
    if (!fault) {
        fault = placeEach(last);
    }
    isComplete_ = !fault;
    withdraw();
    if (fault) {
        for (const std::string& path : leftBehind()) {
            *fault += "; " + path + " could not be taken away again";
        }
    }
    return fault;
}

/// All that can fail and can be done before anything in the folder changes.
std::optional<std::string> StagedFolder::prepare(const StagedFile& last) {
    for (StagedFile& staged : files_) {
        staged.isReplacing = staged.existing == Existing::givesWay && nameIsTaken(staged.path);
    }
    if (std::ranges::any_of(files_, &StagedFile::isReplacing)) {
        if (std::optional<std::string> fault = flush()) {
            return fault;
        }
    }
    for (StagedFile& staged : files_) {
        if (!staged.isReplacing) {
            continue;
        }
        if (staged.isOpen && !staged.file.setAside(staged.path)) {
            return faultOf(staged.path, staged.file.error());
        }
        if (&staged != &last) {
            staged.earlier.emplace(staged.path);
        }
    }
    return std::nullopt;
}

/// A few files one by one, many at once with all others of the file system.
std::optional<std::string> StagedFolder::flush() {
    constexpr std::size_t kFew = 16;
    if (files_.size() > kFew) {
        const std::string error = flushFileSystem(folder_);
        return error.empty() ? std::nullopt : std::optional(faultOf(folder_, error));
    }
    for (StagedFile& staged : files_) {
        if (staged.isOpen && !staged.file.flush()) {
            return faultOf(staged.path, staged.file.error());
        }
    }
    return std::nullopt;
}

std::optional<std::string> StagedFolder::placeEach(StagedFile& last) {
    std::optional<std::string> fault;
    const auto placeWhere = [&](bool isReplacing) {
        for (StagedFile& staged : files_) {
            if (!fault && &staged != &last && !staged.isPlaced && staged.isReplacing == isReplacing) {
                fault = place(staged);
            }
        }
    };
    placeWhere(false);
    placeWhere(true);
    if (!fault && Undisturbed::isAwaited()) {
        fault = "interrupted";
    }
    return fault ? fault : place(last);
}

std::optional<std::string> StagedFolder::place(StagedFile& staged) {
    if (staged.earlier) {
        if (const std::string error = staged.earlier->keep(); !error.empty()) {
            return faultOf(staged.path, "cannot be replaced: " + error);
        }
    }
    const Placing placing = staged.isReplacing
                                ? (staged.file.replace(staged.path) ? Placing::placed : Placing::failed)
                                : staged.file.placeNew(staged.path);
    staged.isPlaced = placing == Placing::placed;
    if (placing == Placing::existed) {
        return faultOf(staged.path, "has been made by another program meanwhile, and stays as it is");
    }
    return staged.isPlaced ? std::nullopt : std::optional(faultOf(staged.path, staged.file.error()));
}

/// Puts everything back that has changed, or lets go what was kept for that. Only calls the system.
void StagedFolder::withdraw() noexcept {
    for (StagedFile& staged : files_ | std::views::reverse) {
        if (staged.earlier) {
            isComplete_ ? staged.earlier->letGo() : staged.earlier->bringBack();
        } else if (staged.isPlaced && !isComplete_) {
            staged.isPlaced = !removeFile(staged.path);
        }
    }
}

std::vector<std::string> StagedFolder::leftBehind() const {
    std::vector<std::string> paths;
    for (const StagedFile& staged : files_) {
        if (staged.earlier && staged.earlier->isKept()) {
            paths.push_back(staged.earlier->keptPath());
        } else if (staged.isPlaced && !staged.earlier && !isComplete_) {
            paths.push_back(nativePath(staged.path));
        }
    }
    return paths;
}

} // namespace orvane
