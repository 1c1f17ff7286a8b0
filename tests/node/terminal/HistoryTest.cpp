#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "node/terminal/EditorSession.h"
#include "support/TemporaryFolder.h"

namespace
{

class HistoryTest : public ::testing::Test
{
protected:
    const TemporaryFolder folder;
    const Surroundings surroundings{.historyFile = folder.pathOf("state/history")};
};

TEST_F(HistoryTest, LinesComeBackInTheNextRun)
{
    EditorSession(surroundings).type("one\rtwo\r", "host> one\n<one>\nhost> two\n<two>\nhost> |\n");
    EditorSession session(surroundings);
    session.type(key::Up, "host> two|\n");
    session.type(key::Up, "host> one|\n");
    session.type(key::Down, "host> two|\n");
    session.type("!\r", "host> two!\n<two!>\nhost> |\n");
    EXPECT_EQ("one\ntwo\ntwo!\n", folder.read("state/history"));
}

TEST_F(HistoryTest, ItIsItsOwnersAlone)
{
    using std::filesystem::perms;
    EditorSession(surroundings).type("one\r", "host> one\n<one>\nhost> |\n");
    EXPECT_EQ(perms::owner_all, std::filesystem::status(folder.pathOf("state")).permissions());
    EXPECT_EQ(perms::owner_read | perms::owner_write, std::filesystem::status(surroundings.historyFile).permissions());
}

TEST_F(HistoryTest, ALineIsKeptAsSoonAsItIsTyped)
{
    EditorSession session(surroundings);
    session.type("hold\r", "host> hold\nholding\n|\n");
    EXPECT_EQ("hold\n", folder.read("state/history"));
    session.go();
}

TEST_F(HistoryTest, ALineThatIsRepeatedIsKeptOnce)
{
    EditorSession(surroundings).type("one\rone\r", "host> one\n<one>\nhost> one\n<one>\nhost> |\n");
    EditorSession session(surroundings);
    session.type("one\rtwo\rone\r", R"(host> one
<one>
host> two
<two>
host> one
<one>
host> |
)");
    EXPECT_EQ("one\ntwo\none\n", folder.read("state/history"));
}

TEST_F(HistoryTest, BlankLinesAndThoseThatWereDroppedAreNotKept)
{
    EditorSession session(surroundings);
    session.type("\r  \r", "host>\n<>\nhost>\n<  >\nhost> |\n");
    session.type("one", "host>\n<>\nhost>\n<  >\nhost> one|\n");
    session.type(key::CtrlC, "host>\n<>\nhost>\n<  >\nhost> one^C\ninterrupted\nhost> |\n");
    session.type(" two\r", "host>\n<>\nhost>\n<  >\nhost> one^C\ninterrupted\nhost>  two\n< two>\nhost> |\n");
    EXPECT_EQ(" two\n", folder.read("state/history"));
}

TEST_F(HistoryTest, TwoPromptsAtOnceKeepTheLinesOfBoth)
{
    EditorSession here(surroundings);
    EditorSession there(surroundings);
    here.type("one\r", "host> one\n<one>\nhost> |\n");
    there.type("two\r", "host> two\n<two>\nhost> |\n");
    here.type("three\r", "host> one\n<one>\nhost> three\n<three>\nhost> |\n");
    EXPECT_EQ("one\ntwo\nthree\n", folder.read("state/history"));
}

TEST_F(HistoryTest, ALineThatTwoPromptsKeptIsShownOnce)
{
    std::filesystem::create_directory(folder.pathOf("state"));
    folder.write("state/history", "one\none\ntwo\n");
    EditorSession session(surroundings);
    session.type(key::Up + key::Up + key::Up, "host> one|\n");
    session.type(key::Down, "host> two|\n");
}

TEST_F(HistoryTest, AThousandLinesAreKept)
{
    std::string lines;
    for (int number = 0; number <= 1000; ++number)
    {
        lines += std::to_string(number) + '\n';
    }
    std::filesystem::create_directory(folder.pathOf("state"));
    folder.write("state/history", lines);
    EditorSession session(surroundings);
    std::string keys;
    for (int line = 0; line <= 1000; ++line)
    {
        keys += key::Up;
    }
    session.type(keys, "host> 1|\n");
    EXPECT_EQ(lines.substr(2), folder.read("state/history"));
}

TEST_F(HistoryTest, ALineIsFoundBySearching)
{
    EditorSession session(surroundings);
    session.type("one\rtwo\r", "host> one\n<one>\nhost> two\n<two>\nhost> |\n");
    session.type(key::CtrlR + "ne\r", R"(host> one
<one>
host> two
<two>
host> one
<one>
host> |
)");
}

TEST_F(HistoryTest, WithoutAHistoryLinesAreReadAllTheSame)
{
    std::filesystem::create_directories(surroundings.historyFile);
    EditorSession session(surroundings);
    session.type("one\r", "host> one\n<one>\nhost> |\n");
    session.type(key::Up, "host> one\n<one>\nhost> one|\n");
}

} // namespace
