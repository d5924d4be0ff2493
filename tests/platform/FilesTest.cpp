#include "platform/Files.h"

#include "platform/NarrowText.h"
#include "platform/OutputFile.h"
#include "platform/StagedFolder.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <optional>
#include <sys/resource.h>

namespace orvane {
namespace {

TEST(OutputFile, HasNoNameUntilItIsPlaced) {
    const TemporaryFolder disk;
    {
        OutputFile abandoned = OutputFile::create(disk.path().string());
        abandoned.write("half");
        EXPECT_TRUE(disk.names().empty());
    }
    OutputFile file = OutputFile::create(disk.path().string());
    file.write("new");
    EXPECT_EQ(file.placeNew(disk / "target"), Placing::placed);
    EXPECT_EQ(readFile(disk / "target"), "new");

    OutputFile second = OutputFile::create(disk.path().string());
    second.write("newer");
    EXPECT_EQ(second.placeNew(disk / "target"), Placing::existed);
    EXPECT_EQ(readFile(disk / "target"), "new");
    EXPECT_TRUE(second.replace(disk / "target"));
    EXPECT_EQ(readFile(disk / "target"), "newer");
    EXPECT_EQ(disk.names().size(), 1u);
}

TEST(OutputFile, TakesTheRightsOfAFileThatItReplacesAndReplacesNothingElse) {
    const TemporaryFolder disk;
    writeFile(disk / "private", "secret");
    std::filesystem::permissions(disk / "private", std::filesystem::perms::owner_read);
    std::filesystem::create_symlink("private", disk / "link");
    std::filesystem::create_directory(disk / "folder");
    for (const char* name : {"private", "link"}) {
        OutputFile file = OutputFile::create(disk.path().string());
        file.write("after");
        EXPECT_TRUE(file.replace(disk / name));
        EXPECT_EQ(std::filesystem::status(disk / name).permissions(), std::filesystem::perms::owner_read);
        EXPECT_FALSE(std::filesystem::is_symlink(disk / name));
    }
    OutputFile file = OutputFile::create(disk.path().string());
    EXPECT_FALSE(file.replace(disk / "folder"));
    EXPECT_EQ(file.error(), "cannot be put in its place: Is a directory");
    EXPECT_EQ(disk.names(), (std::set<std::string>{"private", "link", "folder"}));
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
    OutputFile source = OutputFile::create(disk.path().string());
    EXPECT_TRUE(source.write(pieces));
    OutputFile target = OutputFile::create(disk.path().string());
    EXPECT_TRUE(target.append(source, 5, 5000));
    EXPECT_TRUE(target.overwrite(1, std::as_bytes(std::span("ab", 2))));
    EXPECT_EQ(target.position(), 5000);
    OutputFile copy = OutputFile::create(disk.path().string());
    EXPECT_TRUE(copy.append(target, 0, 5000));
    EXPECT_TRUE(copy.equals(target));
    EXPECT_EQ(copy.placeNew(disk / "target"), Placing::placed);
    EXPECT_TRUE(target.equals(disk / "target"));
    EXPECT_FALSE(target.append(source, 5, 1'000'000)) << "the source is shorter";
    EXPECT_FALSE(target.equals(disk / "target"));
    expected = expected.substr(5, 5000);
    expected.replace(1, 2, "ab");
    EXPECT_EQ(readFile(disk / "target"), expected);
}

TEST(OutputFile, KeepsTheFirstFaultAndFailsFromThenOn) {
    const TemporaryFolder disk;
    OutputFile file = OutputFile::create(disk / "no/such/folder");
    EXPECT_EQ(file.error(), "cannot be created: No such file or directory");
    EXPECT_FALSE(file.write("x"));
    EXPECT_EQ(file.placeNew(disk / "x"), Placing::failed);

    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{4096, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    OutputFile full = OutputFile::create(disk.path().string());
    EXPECT_FALSE(full.write(std::string(10'000, 'x')));
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(full.error(), "cannot be written: File too large");
    EXPECT_FALSE(full.replace(disk / "target"));
    EXPECT_TRUE(disk.names().empty());
}

/// A complete file with this text.
OutputFile filled(const TemporaryFolder& disk, std::string_view text) {
    OutputFile file = OutputFile::create(disk.path().string());
    file.write(text);
    return file;
}

struct StagedFolderTest : testing::Test {
    void stage(const std::string& name, const std::string& text, Existing existing = Existing::stays) {
        EXPECT_EQ(staged->stage(name, filled(disk, text), existing), std::nullopt);
    }

    TemporaryFolder disk;
    std::optional<StagedFolder> staged{std::in_place, disk / ""};
};

TEST_F(StagedFolderTest, ShowsEverythingTogetherAndMoreFilesThanMayBeOpen) {
    writeFile(disk / "old", "before");
    stage("old", "after", Existing::givesWay);
    stage("new", "first");
    EXPECT_TRUE(staged->contains("new"));
    stage("new", "second");
    EXPECT_EQ(disk.names(), std::set<std::string>{"old"});
    for (std::size_t i = 0; i < manyOpenFiles(); ++i) {
        stage("many-" + std::to_string(i), "x");
    }
    EXPECT_EQ(readFile(disk / "old"), "before");
    EXPECT_EQ(staged->placeAll("last", filled(disk, "end"), Existing::stays), std::nullopt);
    staged.reset();
    EXPECT_EQ(readFile(disk / "old") + readFile(disk / "new") + readFile(disk / "last"), "aftersecondend");
    EXPECT_EQ(disk.names().size(), manyOpenFiles() + 3);
}

TEST_F(StagedFolderTest, BringsBackWhatWasThereWhenAnythingFails) {
    writeFile(disk / "old", "before");
    for (std::size_t i = 0; i <= manyOpenFiles(); ++i) {
        stage("many-" + std::to_string(i), "x");
    }
    stage("old", "after", Existing::givesWay);
    writeFile(disk / "last", "of another program");
    EXPECT_EQ(staged->placeAll("last", filled(disk, "end"), Existing::stays),
              (disk / "last") + " has been made by another program meanwhile, and stays as it is");
    EXPECT_EQ(readFile(disk / "old") + readFile(disk / "last"), "beforeof another program");
    EXPECT_EQ(disk.names(), (std::set<std::string>{"old", "last"}));
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
