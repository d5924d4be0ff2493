#pragma once

#include "host/HostObject.h"
#include "host/HostRef.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// The type name of the feature that holds a document's comments.
inline constexpr const char16_t* kCommentsFolderType = u"CommentsFolder";

/// A text comment of a document.
class HostComment : public HostObject {
public:
    virtual std::u16string commentName() const = 0;
    virtual std::u16string commentText() const = 0;
};

/// The folder of comments in a document's feature tree.
class HostCommentFolder : public HostObject {
public:
    virtual std::int32_t commentCount() const = 0;
    /// In the order in which the host shows them.
    virtual std::vector<HostRef<HostComment>> comments() const = 0;
};

} // namespace orvane
