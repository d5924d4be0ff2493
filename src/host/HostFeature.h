#pragma once

#include "host/HostComment.h"
#include "host/HostObject.h"
#include "host/HostRef.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// What a feature is made by.
class HostFeatureDefinition : public HostObject {
public:
    /// Whether the feature's faces may take the look of its seeds, as the instances of a pattern do.
    virtual bool definitionPropagate() const = 0;
    virtual std::int32_t definitionSeedCount() const = 0;
    /// The entities that the feature repeats; each may or may not be a feature.
    virtual std::vector<HostRef<HostObject>> definitionSeeds() const = 0;
};

/// One feature of a document's feature tree.
class HostFeature : public HostObject {
public:
    virtual std::u16string featureName() const = 0;
    virtual std::u16string featureTypeName() const = 0;
    /// The feature behind this one in the document's tree; empty behind the last.
    virtual HostRef<HostFeature> nextFeature() const = 0;
    /// The first feature below this one; empty when there is none.
    virtual HostRef<HostFeature> firstSubFeature() const = 0;
    /// The feature behind this one below the same feature; empty behind the last.
    virtual HostRef<HostFeature> nextSubFeature() const = 0;
    /// The object that the feature stands for, such as a camera; empty when there is none.
    virtual HostRef<HostObject> specificFeature() const = 0;
    /// Empty for a feature without one.
    virtual HostRef<HostFeatureDefinition> featureDefinition() const = 0;
    /// Empty for a feature that is no folder of comments.
    virtual HostRef<HostCommentFolder> commentFolder() const = 0;
};

} // namespace orvane
