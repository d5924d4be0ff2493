#pragma once

#include "embedded/EmbeddedSession.h"
#include "host/HostBox.h"

#include <optional>

namespace orvane::embedded {

/// The box of what a document shows: the one that the document states, else that of all triangles of a part's
/// visible bodies, or of all components of an assembly that are loaded, not suppressed and not hidden, in the
/// root's space. Metres. Nothing when there is no triangle.
std::optional<HostBox> shownBox(EmbeddedSession& session, const ModelDocument& document);

} // namespace orvane::embedded
