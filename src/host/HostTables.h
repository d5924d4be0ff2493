#pragma once

#include "host/HostObject.h"

#include <cstdint>
#include <optional>
#include <string>

namespace orvane {

/// The table that lists a document's configurations and their parameters. Everything but attaching and
/// detaching is asked while it is attached. A text that the host does not have is nothing.
class HostDesignTable : public HostObject {
public:
    /// Makes the table's contents readable; answers whether it did.
    virtual bool attach() = 0;
    virtual void detach() = 0;

    virtual std::int32_t totalRowCount() const = 0;
    virtual std::int32_t totalColumnCount() const = 0;
    /// The number of the first row, and of the first column: what `entryText` counts from.
    virtual std::int32_t headerRow() const = 0;
    virtual std::int32_t firstColumn() const = 0;

    virtual std::optional<std::u16string> tableTitle() const = 0;
    virtual std::optional<std::u16string> headerText(std::int32_t column) const = 0;
    virtual std::optional<std::u16string> entryText(std::int32_t row, std::int32_t column) const = 0;
};

/// A table that is placed as an annotation. Rows and columns count from 0.
class HostGeneralTable : public HostObject {
public:
    virtual std::int32_t columnCount() const = 0;
    virtual std::int32_t rowCount() const = 0;

    virtual std::optional<std::u16string> tableTitle() const = 0;
    virtual std::optional<std::u16string> headerText(std::int32_t column) const = 0;
    virtual std::optional<std::u16string> entryText(std::int32_t row, std::int32_t column) const = 0;
};

} // namespace orvane
