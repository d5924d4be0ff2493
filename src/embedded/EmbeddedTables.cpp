#include "embedded/EmbeddedMetadata.h"
#include "embedded/EmbeddedObject.h"
#include "embedded/HostAnswers.h"

namespace orvane::embedded {

namespace {

using TableText = std::optional<std::u16string>;

/// Nothing for a position that the list does not have.
TableText textAt(const std::vector<TableText>& texts, std::int32_t position) {
    return position >= 0 && position < countOf(texts) ? texts[static_cast<std::size_t>(position)]
                                                      : TableText();
}

/// What the two kinds of tables answer alike.
template <class Interface>
class EmbeddedTable : public EmbeddedObject<Interface, TableRecord> {
public:
    using EmbeddedObject<Interface, TableRecord>::EmbeddedObject;

    TableText tableTitle() const final { return record_.title; }
    TableText headerText(std::int32_t column) const final { return textAt(record_.headers, column); }
    TableText entryText(std::int32_t row, std::int32_t column) const final {
        return row >= 0 && row < countOf(record_.rows)
                   ? textAt(record_.rows[static_cast<std::size_t>(row)], column)
                   : TableText();
    }

protected:
    using EmbeddedObject<Interface, TableRecord>::record_;
};

class EmbeddedDesignTable final : public EmbeddedTable<HostDesignTable> {
public:
    using EmbeddedTable::EmbeddedTable;

    bool attach() override { return record_.attach; }
    void detach() override {}
    std::int32_t totalRowCount() const override { return countOf(record_.rows); }
    std::int32_t totalColumnCount() const override { return countOf(record_.headers); }
    std::int32_t headerRow() const override { return record_.startRow; }
    std::int32_t firstColumn() const override { return record_.startColumn; }
};

class EmbeddedGeneralTable final : public EmbeddedTable<HostGeneralTable> {
public:
    using EmbeddedTable::EmbeddedTable;

    std::int32_t columnCount() const override { return countOf(record_.headers); }
    std::int32_t rowCount() const override { return countOf(record_.rows); }
};

class EmbeddedAnnotation final : public EmbeddedObject<HostAnnotation, AnnotationRecord> {
public:
    using EmbeddedObject::EmbeddedObject;

    std::int32_t annotationType() const override { return record_.type; }
    HostRef<HostObject> specificAnnotation() const override {
        return record_.table ? makeHostObject<EmbeddedGeneralTable>(session_, *record_.table)
                             : HostRef<EmbeddedGeneralTable>();
    }
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
