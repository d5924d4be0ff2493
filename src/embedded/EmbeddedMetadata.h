#pragma once

#include "embedded/EmbeddedSession.h"

#include <vector>

namespace orvane::embedded {

HostRef<HostCustomProperties> makeCustomProperties(const SessionRef& session,
                                                   const ConfigurationRecord& configuration);
/// Empty for a feature of another type.
HostRef<HostCommentFolder> makeCommentFolder(const SessionRef& session, const FeatureRecord& feature);
/// Empty for a document without one.
HostRef<HostDesignTable> makeDesignTable(const SessionRef& session, const ModelDocument& document);
std::vector<HostRef<HostAnnotation>> makeAnnotations(const SessionRef& session,
                                                     const ModelDocument& document);

} // namespace orvane::embedded
