#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"
#include "support/Terminal.h"

namespace
{

/// A terminal where lines are typed, and a file that the answers go to.
class PlainPromptTest : public ::testing::Test
{
protected:
    PlainPromptTest()
    {
        terminal.readUntil(prompt);
    }

    /// What was answered, once the program has ended.
    std::string answers()
    {
        EXPECT_EQ(0, terminal.exitStatus());
        std::ifstream file(folder.pathOf("answers"), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    TemporaryFolder folder;
    std::string prompt = "kel-node 0:00:00.0> ";
    Terminal terminal{{"/bin/sh", "-c", R"(exec "$0" --clock told >"$1")", KEL_NODE, folder.pathOf("answers")},
                      std::vector<std::string>{"TERM=dumb", "HOME=" + folder.path()}};
};

TEST_F(PlainPromptTest, LinesAreTypedAndAnswersGoElsewhere)
{
    terminal.type("getXpicPreamble 1\n");
    EXPECT_EQ("getXpicPreamble 1\r\n" + prompt, terminal.readUntil(prompt));
    terminal.type("exit\n");
    EXPECT_EQ("exit\r\n", terminal.readToTheEnd());
    EXPECT_EQ("0\n", answers());
}

TEST_F(PlainPromptTest, CtrlCDropsTheLineAndLeavesTheNode)
{
    terminal.type("setXpicPreamble 1 2\n");
    EXPECT_EQ("setXpicPreamble 1 2\r\n" + prompt, terminal.readUntil(prompt));
    const std::string typed = "setXpicPreamble 1 3";
    terminal.type(typed);
    EXPECT_EQ(typed, terminal.readUntil(typed));
    terminal.type("\x03");
    EXPECT_EQ("^C\r\n" + prompt, terminal.readUntil(prompt));
    terminal.type("getXpicPreamble 1\n");
    EXPECT_EQ("getXpicPreamble 1\r\n" + prompt, terminal.readUntil(prompt));
    terminal.type("\x04");
    EXPECT_EQ("\r\n", terminal.readToTheEnd());
    EXPECT_EQ("2\n", answers());
}

TEST_F(PlainPromptTest, CtrlCDropsThePartOfALineThatWasReadAlready)
{
    terminal.type("nonsense\x04"); // Ctrl-D hands it to the program without a line end
    EXPECT_EQ("nonsense", terminal.readUntil("nonsense"));
    terminal.type("\x03");
    EXPECT_EQ("^C\r\n" + prompt, terminal.readUntil(prompt));
    terminal.type("getXpicPreamble 1\n");
    EXPECT_EQ("getXpicPreamble 1\r\n" + prompt, terminal.readUntil(prompt));
    terminal.type("\x04");
    EXPECT_EQ("\r\n", terminal.readToTheEnd());
    EXPECT_EQ("0\n", answers());
}

} // namespace
