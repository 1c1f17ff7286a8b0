#include <atomic>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "node/terminal/Descriptor.h"
#include "node/terminal/HistoryFile.h"
#include "support/TemporaryFolder.h"

namespace
{

namespace fs = std::filesystem;
using node::terminal::HistoryFile;
using Lines = std::vector<std::string>;

class HistoryFileTest : public ::testing::Test
{
protected:
    /// As wide as can be: what the file and its folders are is not left to it.
    HistoryFileTest() : m_umask(umask(0))
    {
    }

    ~HistoryFileTest() override
    {
        umask(m_umask);
    }

    static fs::perms modeOf(const std::string& path)
    {
        return fs::status(path).permissions();
    }

    static constexpr fs::perms OwnFile = fs::perms::owner_read | fs::perms::owner_write;

    const TemporaryFolder folder;
    const std::string path = folder.pathOf("history");
    const HistoryFile file{path, 3};

private:
    mode_t m_umask;
};

TEST_F(HistoryFileTest, OneThatIsNotThereIsEmptyAndStaysAway)
{
    EXPECT_EQ(Lines{}, file.read());
    EXPECT_FALSE(folder.has("history"));
}

TEST_F(HistoryFileTest, LinesAreKeptInTheirOrder)
{
    file.append("one");
    file.append("two \xC3\xA4");
    EXPECT_EQ((Lines{"one", "two \xC3\xA4"}), file.read());
    EXPECT_EQ("one\ntwo \xC3\xA4\n", folder.read("history"));
}

TEST_F(HistoryFileTest, TwoPromptsKeepTheLinesOfBoth)
{
    const HistoryFile other(path, 3);
    file.append("one");
    other.append("two");
    file.append("three");
    EXPECT_EQ((Lines{"one", "two", "three"}), other.read());
}

TEST_F(HistoryFileTest, TheNewestLinesAreKept)
{
    folder.write("history", "1\n2\n3\n");
    EXPECT_EQ((Lines{"1", "2", "3"}), file.read());
    file.append("a long line");
    EXPECT_EQ("1\n2\n3\na long line\n", folder.read("history"));
    EXPECT_EQ((Lines{"2", "3", "a long line"}), file.read());
    EXPECT_EQ("2\n3\na long line\n", folder.read("history"));
}

TEST_F(HistoryFileTest, WhileOnePromptDropsOldLinesAnotherLosesNone)
{
    constexpr int Last = 2000;
    std::atomic<bool> isDone = false;
    std::thread other(
        [&]
        {
            for (int number = 1; number <= Last; ++number)
            {
                file.append(std::to_string(number));
            }
            isDone = true;
        });
    std::string gaps;
    while (!isDone)
    {
        const Lines lines = file.read();
        for (std::size_t place = 1; place < lines.size(); ++place)
        {
            const bool isNext = std::stoi(lines[place - 1]) + 1 == std::stoi(lines[place]);
            gaps += isNext ? "" : lines[place - 1] + '-' + lines[place] + ' ';
        }
    }
    other.join();
    EXPECT_EQ("", gaps);
    EXPECT_EQ((Lines{"1998", "1999", "2000"}), file.read());
}

TEST_F(HistoryFileTest, MissingFoldersAreMadeForTheirOwnerAlone)
{
    const std::string deep = folder.pathOf("a/b/history");
    HistoryFile(deep, 3).append("one");
    EXPECT_EQ(fs::perms::owner_all, modeOf(folder.pathOf("a")));
    EXPECT_EQ(fs::perms::owner_all, modeOf(folder.pathOf("a/b")));
    EXPECT_EQ(OwnFile, modeOf(deep));
    EXPECT_EQ("one\n", folder.read("a/b/history"));
}

TEST_F(HistoryFileTest, AWiderModeIsNarrowedWhenItIsReadOrWritten)
{
    folder.write("history", "one\n");
    EXPECT_EQ(OwnFile | fs::perms::group_read | fs::perms::others_read | fs::perms::group_write |
                  fs::perms::others_write,
              modeOf(path));
    EXPECT_EQ(Lines{"one"}, file.read());
    EXPECT_EQ(OwnFile, modeOf(path));
    fs::permissions(path, OwnFile | fs::perms::others_read);
    file.append("two");
    EXPECT_EQ(OwnFile, modeOf(path));
    fs::permissions(path, OwnFile | fs::perms::group_read);
    EXPECT_EQ((Lines{"one", "two"}), file.read());
    EXPECT_EQ(OwnFile, modeOf(path));
}

TEST_F(HistoryFileTest, ALinkIsFollowed)
{
    folder.write("elsewhere", "one\n");
    fs::create_symlink("elsewhere", path);
    file.append("two");
    EXPECT_EQ((Lines{"one", "two"}), file.read());
    EXPECT_TRUE(fs::is_symlink(path));
}

TEST_F(HistoryFileTest, AFolderInItsPlaceIsLeftAlone)
{
    fs::create_directory(path);
    fs::permissions(path, fs::perms::all);
    file.append("one");
    EXPECT_EQ(Lines{}, file.read());
    EXPECT_TRUE(fs::is_empty(path));
    EXPECT_EQ(fs::perms::all, modeOf(path));
}

TEST_F(HistoryFileTest, APipeInItsPlaceIsLeftAlone)
{
    ASSERT_EQ(0, mkfifo(path.c_str(), 0666));
    file.append("one");
    EXPECT_EQ(Lines{}, file.read());
    EXPECT_NE(OwnFile, modeOf(path));
}

TEST_F(HistoryFileTest, ADeviceInItsPlaceIsLeftAlone)
{
    const fs::perms before = modeOf("/dev/null");
    fs::create_symlink("/dev/null", path);
    file.append("one");
    EXPECT_EQ(Lines{}, file.read());
    EXPECT_EQ(before, modeOf("/dev/null"));
}

TEST_F(HistoryFileTest, AFileWhereAFolderShouldBeIsLeftAlone)
{
    folder.write("a", "kept");
    const HistoryFile below(folder.pathOf("a/history"), 3);
    below.append("one");
    EXPECT_EQ(Lines{}, below.read());
    EXPECT_EQ("kept", folder.read("a"));
}

TEST_F(HistoryFileTest, AFileThatCannotBeKeptFromOthersIsLeftAlone)
{
    // The kernel's file of the thread's name: anybody may read it, and nobody may change that.
    fs::create_symlink("/proc/self/comm", path);
    const std::string before = folder.read("history");
    file.append("one");
    EXPECT_EQ(before, folder.read("history"));
    EXPECT_EQ(Lines{}, file.read());
}

TEST_F(HistoryFileTest, AFileThatCannotBeCutKeepsTheDroppedLines)
{
    const node::terminal::Descriptor sealed(memfd_create("history", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    fs::create_symlink("/proc/self/fd/" + std::to_string(sealed.get()), path);
    for (const char* line : {"1", "2", "3", "4"})
    {
        file.append(line);
    }
    ASSERT_EQ(0, fcntl(sealed.get(), F_ADD_SEALS, F_SEAL_SHRINK));
    EXPECT_EQ((Lines{"2", "3", "4"}), file.read());
    EXPECT_EQ("2\n3\n4\n4\n", folder.read("history"));
}

TEST_F(HistoryFileTest, NoPathKeepsNothing)
{
    const HistoryFile none("", 3);
    none.append("one");
    EXPECT_EQ(Lines{}, none.read());
}

} // namespace
