#pragma once

#include <memory>
#include <string>

namespace orvane::platform {
class TemporaryName;
}

namespace orvane {

/// A file that is to be replaced, kept beside its place until it is certain that it may go. Used within an
/// `Undisturbed`, from the first call to the last.
class KeptFile {
public:
    /// Takes all the memory that is needed.
    explicit KeptFile(const std::string& path);
    KeptFile(KeptFile&& other) noexcept;
    KeptFile& operator=(KeptFile&& other) noexcept;
    ~KeptFile();

    /// Keeps the file; it stays under its name too where the file system knows several names for a file. On
    /// failure, gives the system's words; empty otherwise.
    std::string keep();
    bool isKept() const { return isKept_; }
    /// Puts it back in the place of whatever stands there, if it is kept. Where that is impossible it remains
    /// kept, and does not go with the object.
    void bringBack() noexcept;
    /// Lets it go, if it is kept; it remains kept where the system does not let it go.
    void letGo() noexcept;
    /// Where a kept file stands.
    std::string keptPath() const;

private:
    std::string path_; ///< native
    std::unique_ptr<platform::TemporaryName> name_;
    bool isKept_ = false;
};

} // namespace orvane
