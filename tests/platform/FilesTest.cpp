#include "platform/Files.h"

#include "platform/NarrowText.h"
#include "platform/OutputFile.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace orvane {
namespace {

TEST(OutputFile, LeavesNothingBehindUnlessItIsMovedToItsPlace) {
    const TemporaryFolder disk;
    {
        OutputFile abandoned = OutputFile::createTemporary(disk.path().string());
        abandoned.write("half");
        OutputFile nameless = OutputFile::createNameless(disk.path().string());
        nameless.write("working");
        EXPECT_EQ(disk.names().size(), 1u) << "a nameless file has no name";
    }
    EXPECT_TRUE(disk.names().empty());
    writeFile(disk / "target", "before");
    OutputFile file = OutputFile::createTemporary(disk.path().string());
    file.write("after");
    EXPECT_EQ(readFile(disk / "target"), "before");
    EXPECT_TRUE(file.moveTo(disk / "target"));
    EXPECT_EQ(readFile(disk / "target"), "after");
    EXPECT_EQ(disk.names().size(), 1u);
}

TEST(OutputFile, AppendsManyPiecesAndRangesOfOtherFiles) {
    const TemporaryFolder disk;
    const std::string text = "0123456789";
    std::string expected;
    std::vector<Bytes> pieces;
    for (std::size_t i = 0; i < 3000; ++i) {
        pieces.push_back(std::as_bytes(std::span(text)).first(i % 11));
        expected += text.substr(0, i % 11);
    }
    OutputFile source = OutputFile::createNameless(disk.path().string());
    EXPECT_TRUE(source.write(pieces));
    OutputFile target = OutputFile::create(disk / "target");
    EXPECT_TRUE(target.append(source, 5, 5000));
    EXPECT_TRUE(target.overwrite(1, std::as_bytes(std::span("ab", 2))));
    EXPECT_EQ(target.position(), 5000);
    EXPECT_FALSE(target.append(source, 5, 1'000'000)) << "the source is shorter";
    target.close();
    expected = expected.substr(5);
    expected.replace(1, 2, "ab");
    EXPECT_EQ(readFile(disk / "target").substr(0, 5000), expected.substr(0, 5000));
}

TEST(OutputFile, KeepsTheFirstFaultAndFailsFromThenOn) {
    const TemporaryFolder disk;
    OutputFile file = OutputFile::create(disk / "no/such/folder");
    EXPECT_EQ(file.error(), "cannot be created: No such file or directory");
    EXPECT_FALSE(file.write("x"));
    EXPECT_FALSE(file.close());

    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{4096, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    OutputFile full = OutputFile::createTemporary(disk.path().string());
    EXPECT_FALSE(full.write(std::string(10'000, 'x')));
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(full.error(), "cannot be written: File too large");
    EXPECT_FALSE(full.moveTo(disk / "target"));
    EXPECT_FALSE(std::filesystem::exists(disk / "target"));
}

TEST(NarrowText, GoesThroughUtf8AndBack) {
    const std::u16string text = u"aé€\U0001F600";
    EXPECT_EQ(toSystemNarrow(text), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(fromSystemNarrow(toSystemNarrow(text)), text);
    EXPECT_EQ(toSystemNarrow(std::u16string{0xD800, u'x'}), "\xEF\xBF\xBDx");
    EXPECT_EQ(fromSystemNarrow("a\xFF\xC3"), u"a\uFFFD\uFFFD");
    EXPECT_EQ(fromSystemNarrow("\xC0\xAF"), u"\uFFFD\uFFFD") << "overlong";
}

} // namespace
} // namespace orvane
