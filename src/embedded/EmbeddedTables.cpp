#include "embedded/EmbeddedMetadata.h"

#include <utility>

namespace orvane::embedded {

namespace {

using TableText = std::optional<std::u16string>;

/// Nothing for a position that the list does not have.
TableText textAt(const std::vector<TableText>& texts, std::int32_t position) {
    return position >= 0 && static_cast<std::size_t>(position) < texts.size()
               ? texts[static_cast<std::size_t>(position)]
               : TableText();
}

TableText entryAt(const TableRecord& table, std::int32_t row, std::int32_t column) {
    return row >= 0 && static_cast<std::size_t>(row) < table.rows.size()
               ? textAt(table.rows[static_cast<std::size_t>(row)], column)
               : TableText();
}

class EmbeddedDesignTable final : public HostDesignTable {
public:
    EmbeddedDesignTable(SessionRef session, const TableRecord& record)
        : session_(std::move(session)), record_(record) {}

    bool attach() override { return record_.attach; }
    void detach() override {}

    std::int32_t totalRowCount() const override { return static_cast<std::int32_t>(record_.rows.size()); }
    std::int32_t totalColumnCount() const override {
        return static_cast<std::int32_t>(record_.headers.size());
    }
    std::int32_t headerRow() const override { return record_.startRow; }
    std::int32_t firstColumn() const override { return record_.startColumn; }

    TableText tableTitle() const override { return record_.title; }
    TableText headerText(std::int32_t column) const override { return textAt(record_.headers, column); }
    TableText entryText(std::int32_t row, std::int32_t column) const override {
        return entryAt(record_, row, column);
    }

    const void* identity() const noexcept override { return &record_; }

private:
    SessionRef session_; // keeps the record
    const TableRecord& record_;
};

class EmbeddedGeneralTable final : public HostGeneralTable {
public:
    EmbeddedGeneralTable(SessionRef session, const TableRecord& record)
        : session_(std::move(session)), record_(record) {}

    std::int32_t columnCount() const override { return static_cast<std::int32_t>(record_.headers.size()); }
    std::int32_t rowCount() const override { return static_cast<std::int32_t>(record_.rows.size()); }

    TableText tableTitle() const override { return record_.title; }
    TableText headerText(std::int32_t column) const override { return textAt(record_.headers, column); }
    TableText entryText(std::int32_t row, std::int32_t column) const override {
        return entryAt(record_, row, column);
    }

    const void* identity() const noexcept override { return &record_; }

private:
    SessionRef session_;
    const TableRecord& record_;
};

class EmbeddedAnnotation final : public HostAnnotation {
public:
    EmbeddedAnnotation(SessionRef session, const AnnotationRecord& record)
        : session_(std::move(session)), record_(record) {}

    std::int32_t annotationType() const override { return record_.type; }
    HostRef<HostObject> specificAnnotation() const override {
        return record_.table ? makeHostObject<EmbeddedGeneralTable>(session_, *record_.table)
                             : HostRef<EmbeddedGeneralTable>();
    }

    const void* identity() const noexcept override { return &record_; }

private:
    SessionRef session_;
    const AnnotationRecord& record_;
};

} // namespace

HostRef<HostDesignTable> makeDesignTable(const SessionRef& session, const ModelDocument& document) {
    return document.designTable ? makeHostObject<EmbeddedDesignTable>(session, *document.designTable)
                                : HostRef<EmbeddedDesignTable>();
}

std::vector<HostRef<HostAnnotation>> makeAnnotations(const SessionRef& session,
                                                     const ModelDocument& document) {
    std::vector<HostRef<HostAnnotation>> annotations;
    annotations.reserve(document.annotations.size());
    for (const AnnotationRecord& record : document.annotations) {
        annotations.push_back(makeHostObject<EmbeddedAnnotation>(session, record));
    }
    return annotations;
}

} // namespace orvane::embedded
