#pragma once

#include "embedded/ComponentInstances.h"
#include "embedded/StudyPlayback.h"
#include "model/records/ModelRecords.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvane::embedded {

/// The motion studies of the opened document: its own and those made while it is open. At most one of them is
/// entered.
class EmbeddedStudies {
public:
    /// `document` outlives the object, and so do `components`, which are null for a part.
    EmbeddedStudies(const ModelDocument& document, ComponentInstances* components);

    const std::vector<StudyRef>& all() const { return studies_; }
    /// The first study of that name; null where there is none.
    StudyRef find(const std::u16string& name) const;
    /// Takes out the youngest study of that name, so that one just made goes before one of the document.
    bool remove(const std::u16string& name);

    /// Begins a new round of exploded views.
    void restartExplodedViews() { nextExplodedView_ = 0; }
    /// Adds an empty study, for the next exploded view of the round.
    void add(const StudyRef& study);
    /// Fills a study with its exploded view; false where it has none.
    bool generateExplodeMotion(EmbeddedStudy& study, bool explode, double duration, double start) const;

    /// Enters a study; one that was entered is left.
    void enter(const StudyRef& study);
    /// Puts the components back where they stand without a study; false where this study is not entered.
    bool leave(const StudyRef& study);
    void seek(const StudyRef& study, double seconds);

    /// What moves the components at present; null outside studies.
    StudyPlayback* playback() { return playback_ ? &*playback_ : nullptr; }

private:
    const ModelDocument& document_;
    ComponentInstances* components_;
    std::vector<StudyRef> studies_;
    std::size_t nextExplodedView_ = 0;
    std::optional<StudyPlayback> playback_;
};

} // namespace orvane::embedded
