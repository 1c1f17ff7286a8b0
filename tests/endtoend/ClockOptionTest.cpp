#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "endtoend/Program.h"
#include "support/Terminal.h"

namespace
{

constexpr const char* Beginning = "Time:            0:00:00.0\r\n";

/// The line of the time that showLink prints, typed at the terminal now.
std::string timeShown(const Terminal& terminal)
{
    const std::string next = "Distance:";
    terminal.type("showLink\n");
    const std::string text = terminal.readUntil(next);
    const auto place = text.rfind("Time:");
    EXPECT_NE(std::string::npos, place) << text;
    return place == std::string::npos ? "" : text.substr(place, text.size() - next.size() - place);
}

/// Returns when a node that keeps time with the clock on the wall has gone on.
void waitForTheWall(const Terminal& wall)
{
    constexpr int Patience = 100'000; // questions; that many take far longer than a tick
    for (int questions = 0; timeShown(wall) == Beginning; ++questions)
    {
        ASSERT_LT(questions, Patience);
    }
}

/// The program with a pipe that hands on what is typed, line by line.
std::vector<std::string> atAPipe(const std::string& options)
{
    return {"/bin/sh", "-c", "cat | " KEL_NODE " " + options};
}

TEST(ClockOptionTest, AtAPromptTimeGoesOnWithTheWall)
{
    waitForTheWall(Terminal({KEL_NODE}));
}

TEST(ClockOptionTest, AScriptKeepsTimeWithTheWallWhenItIsToldSo)
{
    waitForTheWall(Terminal(atAPipe("--clock wall")));
}

TEST(ClockOptionTest, APromptWaitsToBeToldWhenItIsToldSo)
{
    const Terminal told({KEL_NODE, "--clock", "told"});
    EXPECT_EQ(Beginning, timeShown(told));
    waitForTheWall(Terminal({KEL_NODE}));
    EXPECT_EQ(Beginning, timeShown(told));
    told.type("advance 2\n");
    EXPECT_EQ("Time:            0:00:02.0\r\n", timeShown(told));
}

TEST(ClockOptionTest, AScriptWaitsToBeTold)
{
    const Terminal script(atAPipe(""));
    EXPECT_EQ(Beginning, timeShown(script));
    waitForTheWall(Terminal({KEL_NODE}));
    EXPECT_EQ(Beginning, timeShown(script));
}

} // namespace
