#pragma once

#include "document/BufferFolder.h"
#include "document/ExportReport.h"
#include "platform/StagedFolder.h"

#include <string>

namespace orvane {

/// A real folder, in which the files come into being when all that belongs to the export is complete.
class DiskBufferFolder : public BufferFolder {
public:
    /// `staged` takes the files; `report` gets the first fault. Both outlive the object.
    DiskBufferFolder(StagedFolder& staged, ExportReport& report) : staged_(staged), report_(report) {}

    bool contains(const std::string& name) const override { return staged_.contains(name); }
    void write(const std::string& name, BufferContent content, Existing existing) override;
    bool showsNames() const override { return true; }

private:
    StagedFolder& staged_;
    ExportReport& report_;
};

} // namespace orvane
