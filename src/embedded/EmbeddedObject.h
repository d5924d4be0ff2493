#pragma once

#include "embedded/EmbeddedSession.h"

#include <utility>

namespace orvane::embedded {

/// A host object in the role `Interface` that answers from one record of the session, which it keeps. All
/// objects of one role and one record have the same identity.
template <class Interface, class Record>
class EmbeddedObject : public Interface {
public:
    /// `record` lives as long as the session: it stands in its model, or in what the session keeps of it.
    EmbeddedObject(SessionRef session, const Record& record)
        : session_(std::move(session)), record_(record) {}

    const void* identity() const noexcept final { return &record_; }

protected:
    const SessionRef session_;
    const Record& record_;
};

/// A host object whose record stands in `document`, or belongs to it.
template <class Interface, class Record>
class EmbeddedItem : public EmbeddedObject<Interface, Record> {
public:
    EmbeddedItem(SessionRef session, const ModelDocument& document, const Record& record)
        : EmbeddedObject<Interface, Record>(std::move(session), record), document_(document) {}

protected:
    const ModelDocument& document_;
};

} // namespace orvane::embedded
