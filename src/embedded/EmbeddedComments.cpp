#include "embedded/EmbeddedMetadata.h"

#include <utility>

namespace orvane::embedded {

namespace {

class EmbeddedComment final : public HostComment {
public:
    EmbeddedComment(SessionRef session, const CommentRecord& record)
        : session_(std::move(session)), record_(record) {}

    std::u16string commentName() const override { return record_.name; }
    std::u16string commentText() const override { return record_.text; }

    const void* identity() const noexcept override { return &record_; }

private:
    SessionRef session_; // keeps the record
    const CommentRecord& record_;
};

class EmbeddedCommentFolder final : public HostCommentFolder {
public:
    EmbeddedCommentFolder(SessionRef session, const std::vector<CommentRecord>& records)
        : session_(std::move(session)), records_(records) {}

    std::int32_t commentCount() const override { return static_cast<std::int32_t>(records_.size()); }
    std::vector<HostRef<HostComment>> comments() const override {
        std::vector<HostRef<HostComment>> comments;
        comments.reserve(records_.size());
        for (const CommentRecord& record : records_) {
            comments.push_back(makeHostObject<EmbeddedComment>(session_, record));
        }
        return comments;
    }

    const void* identity() const noexcept override { return &records_; }

private:
    SessionRef session_;
    const std::vector<CommentRecord>& records_;
};

} // namespace

HostRef<HostCommentFolder> makeCommentFolder(const SessionRef& session, const FeatureRecord& feature) {
    return feature.type == kCommentsFolderType
               ? makeHostObject<EmbeddedCommentFolder>(session, feature.comments)
               : HostRef<EmbeddedCommentFolder>();
}

} // namespace orvane::embedded
