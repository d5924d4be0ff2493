#include "cli/ProgressDisplay.h"

#include "cli/CommandFixture.h"
#include "cli/TerminalLine.h"
#include "cli/Timings.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace orvane::cli {
namespace {

using Stage = ReadingProgress::Stage;

/// A terminal that nobody sees, of so many columns.
class Terminal {
public:
    explicit Terminal(unsigned short columns) : screen_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
        const winsize size{.ws_row = 24, .ws_col = columns};
        if (screen_ < 0 || grantpt(screen_) != 0 || unlockpt(screen_) != 0 ||
            ioctl(screen_, TIOCSWINSZ, &size) != 0 || (line_ = open(path().c_str(), O_RDWR | O_NOCTTY)) < 0) {
            throw std::runtime_error("there is no terminal to be had");
        }
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;
    ~Terminal() {
        close(line_);
        close(screen_);
    }

    std::string path() const { return ptsname(screen_); }
    int line() const { return line_; }

    /// Everything that was shown one after the other, without what takes a line away.
    std::vector<std::string> shownLines() const {
        std::string all;
        char piece[4096];
        for (ssize_t length = 0; (length = read(screen_, piece, sizeof piece)) > 0;) {
            all.append(piece, static_cast<std::size_t>(length));
        }
        const std::string takeAway = "\r\x1b[K";
        std::vector<std::string> lines;
        for (std::size_t at = 0; at < all.size();) {
            EXPECT_EQ(all.compare(at, takeAway.size(), takeAway), 0) << all;
            const std::size_t start = at + takeAway.size();
            at = std::min(all.find(takeAway, start), all.size());
            lines.push_back(all.substr(start, at - start));
        }
        return lines;
    }

private:
    int screen_;
    int line_ = -1;
};

/// Makes a terminal standard error for a while.
class ErrorsGoTo {
public:
    explicit ErrorsGoTo(const Terminal& terminal) : before_(dup(STDERR_FILENO)) {
        dup2(terminal.line(), STDERR_FILENO);
    }
    ErrorsGoTo(const ErrorsGoTo&) = delete;
    ErrorsGoTo& operator=(const ErrorsGoTo&) = delete;
    ~ErrorsGoTo() {
        dup2(before_, STDERR_FILENO);
        close(before_);
    }

private:
    int before_;
};

TEST(ProgressDisplay, SaysInPlainWordsWhatIsBeingRead) {
    const auto text = [](Stage stage, std::uint64_t done, std::uint64_t of) {
        return readingText({.stage = stage, .done = done, .of = of});
    };
    EXPECT_EQ(text(Stage::parsing, 12'300'000, 38'000'000), ": 12.3 of 38.0 MB");
    EXPECT_EQ(text(Stage::parsing, 0, 0), ": parsing");
    EXPECT_EQ(text(Stage::building, 0, 0), ": building records");
    EXPECT_EQ(text(Stage::findingParts, 0, 0), ": finding parts");
    EXPECT_EQ(text(Stage::meshing, 11, 44), ": part 12 of 44");
    EXPECT_EQ(text(Stage::meshing, 44, 44), ": part 44 of 44");
    EXPECT_EQ(text(Stage::meshing, 0, 0), ": making triangles");
}

TEST(ProgressDisplay, CutsNamesSoThatALineDoesNotWrap) {
    EXPECT_EQ(terminalLine("reading ", "folder/board.step", ": 1 of 2", 33),
              "reading folder/board.step: 1 of 2");
    EXPECT_EQ(terminalLine("reading ", "folder/board.step", ": 1 of 2", 32),
              "reading ...er/board.step: 1 of 2");
    EXPECT_EQ(terminalLine("reading ", "folder/board.step", ": 1 of 2", 15), "reading ...: 1 ");
    EXPECT_EQ(terminalLine("",
                           "a\n\x1b[1m\x7F\xC2\x9B"
                           "b\xFF",
                           "", 80),
              "a??[1m??b\xEF\xBF\xBD");
    EXPECT_EQ(terminalLine("", "wide: \xE6\x9D\xBF\xE6\x9D\xBF", "", 9), "...: \xE6\x9D\xBF\xE6\x9D\xBF");
    EXPECT_EQ(terminalLine("", "wide: \xE6\x9D\xBF\xE6\x9D\xBF", "", 6), "...\xE6\x9D\xBF");
    EXPECT_EQ(terminalLine("\xE6\x9D\xBF\xE6\x9D\xBF", "", "", 3), "\xE6\x9D\xBF");
    for (std::size_t columns = 0; columns < 40; ++columns) {
        EXPECT_EQ(terminalLine("reading ", "folder/board.step", ": 1 of 2", columns).size(),
                  std::min<std::size_t>(columns, 33));
    }
}

TEST(ProgressDisplay, ChangesItsLineAtMostTenTimesASecond) {
    const Terminal terminal(40);
    const Stopwatch watch;
    {
        const ErrorsGoTo errors(terminal);
        ProgressDisplay display(true);
        display.showStart("board.step");
        for (std::uint64_t part = 0; watch.seconds() < 0.35; ++part) {
            display.showReading({.stage = Stage::meshing, .done = part, .of = 0, .file = "board.step"});
            display.showExport({.doneWork = 1});
        }
    }
    const std::vector<std::string> lines = terminal.shownLines();
    EXPECT_EQ(lines.front(), "reading board.step");
    EXPECT_EQ(lines.back(), "") << "taken away at the end";
    EXPECT_GE(lines.size(), 3u);
    EXPECT_LE(static_cast<double>(lines.size()), watch.seconds() * 10 + 2);
}

TEST_F(Command, ShowsItsProgressOnATerminalOfAnyWidth) {
    const std::string name = "\x1b[31m" + std::string(60, 'n') + "\t.tfgprt";
    writeFile(folder / name, part(R"(, "title": "plate")"));
    const Terminal terminal(40);
    const auto linesOf = [&](const std::string& option) {
        const std::string line = "cd '" + folder.path().string() + "' && '" + commandPath() + "' export '" +
                                 name + "' --force -o x.glb " + option + " >out 2>" + terminal.path();
        EXPECT_EQ(std::system(line.c_str()), 0);
        return terminal.shownLines();
    };
    const std::vector<std::string> lines = linesOf("");
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines.front(), "reading ..." + std::string(20, 'n') + "?.tfgprt");
    EXPECT_EQ(lines.back(), "");
    EXPECT_THAT(linesOf("--quiet"), testing::IsEmpty());
}

} // namespace
} // namespace orvane::cli
