#include "embedded/EmbeddedMetadata.h"
#include "embedded/EmbeddedObject.h"
#include "embedded/HostAnswers.h"

namespace orvane::embedded {

namespace {

class EmbeddedComment final : public EmbeddedObject<HostComment, CommentRecord> {
public:
    using EmbeddedObject::EmbeddedObject;

    std::u16string commentName() const override { return record_.name; }
    std::u16string commentText() const override { return record_.text; }
};

class EmbeddedCommentFolder final : public EmbeddedObject<HostCommentFolder, FeatureRecord> {
public:
    using EmbeddedObject::EmbeddedObject;

    std::int32_t commentCount() const override { return countOf(record_.comments); }
    std::vector<HostRef<HostComment>> comments() const override {
        std::vector<HostRef<HostComment>> comments;
        comments.reserve(record_.comments.size());
        for (const CommentRecord& record : record_.comments) {
            comments.push_back(makeHostObject<EmbeddedComment>(session_, record));
        }
        return comments;
    }
};

} // namespace

HostRef<HostCommentFolder> makeCommentFolder(const SessionRef& session, const FeatureRecord& feature) {
    return feature.type == kCommentsFolderType ? makeHostObject<EmbeddedCommentFolder>(session, feature)
                                               : HostRef<EmbeddedCommentFolder>();
}

} // namespace orvane::embedded
