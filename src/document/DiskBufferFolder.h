#pragma once

#include "document/BufferFolder.h"
#include "document/ExportReport.h"

#include <string>
#include <vector>

namespace orvane {

/// A real folder. Takes the files that it made away again at its end, unless they are kept: a failed export
/// leaves none.
class DiskBufferFolder : public BufferFolder {
public:
    /// `folder` has to be there; `report` gets the first fault and outlives the object.
    DiskBufferFolder(std::string folder, ExportReport& report);
    ~DiskBufferFolder() override;

    bool contains(const std::string& name) const override;
    void write(const std::string& name, BufferContent content) override;
    bool showsNames() const override { return true; }

    /// Lets the files stay that were written so far.
    void keep() { written_.clear(); }

private:
    std::string folder_;
    ExportReport& report_;
    std::vector<std::string> written_;
};

} // namespace orvane
