#pragma once

#include "platform/KeptFile.h"
#include "platform/Leavings.h"
#include "platform/OutputFile.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace orvane {

/// What becomes of a file that stands in the folder already.
enum class Existing { stays, givesWay };

/// The files that one piece of work brings into a folder: all of them, or none. They wait without a name, as
/// far as the system has such files and not too many are open, and get their names together when all are
/// complete. Until then, and when that fails or a signal ends the process, everything in the folder stays or
/// becomes what it was.
class StagedFolder {
public:
    /// `folder` has to be there, and ends in a separator unless it is empty. In a new one nothing stands yet,
    /// and nobody looks whether it does.
    explicit StagedFolder(std::string folder, bool isNew = false);
    StagedFolder(const StagedFolder&) = delete;
    StagedFolder& operator=(const StagedFolder&) = delete;
    ~StagedFolder();

    const std::string& path() const { return folder_; }
    /// Whether a file of that name waits here, or something in the folder has it.
    bool contains(const std::string& name) const;
    bool isStaged(const std::string& name) const { return byName_.contains(name); }
    /// Whether the file that waits under that name, or else stands in the folder, has the same bytes.
    bool holdsSame(const std::string& name, const OutputFile& file) const;

    /// Takes a complete file, in the place of one of that name that waits here. Gives a sentence on what went
    /// wrong, with the path; nothing when all is well. A file that is not good is refused so.
    std::optional<std::string> stage(const std::string& name, OutputFile file, Existing existing);

    /// Takes one file more, the one that the others belong to, and gives all their names: first those that
    /// are new, then those that replace others, and this one at the very end. Where files are replaced, all
    /// new ones are on the disk before. Gives a sentence as `stage` does, and everything is as it was then.
    std::optional<std::string> placeAll(const std::string& lastName, OutputFile last, Existing existing);

    /// What could not be taken away behind the work, though it should; usually nothing.
    std::vector<std::string> leftBehind() const;

private:
    struct StagedFile {
        std::string path;
        OutputFile file;
        Existing existing;
        bool isOpen = true;
        bool isReplacing = false; ///< something stood in its place when all were complete
        bool isPlaced = false;
        std::optional<KeptFile> earlier{}; ///< what stood there
    };

    StagedFile& add(const std::string& name, OutputFile file, Existing existing);
    std::optional<std::string> prepare(const StagedFile& last);
    std::optional<std::string> placeEach(StagedFile& last);
    static std::optional<std::string> place(StagedFile& staged);
    std::optional<std::string> flush();
    void withdraw() noexcept;

    std::string folder_;
    bool isNew_;
    std::vector<StagedFile> files_; ///< in order of staging
    std::unordered_map<std::string, std::size_t> byName_;
    std::size_t openCount_ = 0;
    bool isComplete_ = false;
    Leaving leaving_;
};

} // namespace orvane
