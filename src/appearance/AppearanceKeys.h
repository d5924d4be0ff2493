#pragma once

#include "host/HostBody.h"
#include "host/HostFeature.h"
#include "host/HostModelDoc.h"

#include <string>

namespace orvane::appearance {

/// The keys under which an `AppearanceTable` holds bodies and features: the document's title, `\` and the
/// name. Empty when either is missing. Components go by their full names, documents by their paths.
inline std::u16string bodyKey(HostModelDoc* document, const HostBody* body) {
    return document && body ? document->documentTitle() + u'\\' + body->bodyName() : std::u16string();
}

inline std::u16string featureKey(HostModelDoc* document, const HostFeature* feature) {
    return document && feature ? document->documentTitle() + u'\\' + feature->featureName()
                               : std::u16string();
}

} // namespace orvane::appearance
