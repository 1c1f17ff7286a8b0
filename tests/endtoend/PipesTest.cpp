#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include <csignal>

#include "endtoend/Program.h"
#include "support/Terminal.h"

namespace
{

std::string repeated(const std::string& line, int times)
{
    std::string lines;
    for (int i = 0; i < times; ++i)
    {
        lines += line;
    }
    return lines;
}

/// What a shell writes that runs the program in a pipeline.
std::string shellOutput(const std::string& commands)
{
    return Terminal({"/bin/sh", "-c", commands}).readToTheEnd();
}

TEST(PipesTest, NothingToReadIsNothingToDo)
{
    const Finished run = finish({.arguments = {}, .inputFile = "/dev/null"});
    EXPECT_EQ("", run.output);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ(0, run.status);
}

TEST(PipesTest, AHundredThousandLinesLoseNoneAndNeedNoMoreMemoryThanAThousand)
{
    constexpr int Few = 1'000;
    constexpr int Many = 100'000;
    const Finished few = runScript(repeated("setXpicPreamble 1 2\ngetXpicPreamble 1\n", Few / 2));
    const Finished many = runScript(repeated("setXpicPreamble 1 2\ngetXpicPreamble 1\n", Many / 2));
    EXPECT_EQ(repeated("2\n", Many / 2), many.output);
    EXPECT_EQ("", many.errors);
    EXPECT_EQ(0, many.status);
    // The sanitizers keep what was released, and books of their own.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    constexpr long HistoryOfTenThousand_KiB = 8'192; // that a recording could still begin with
    EXPECT_LT(many.memory_KiB, few.memory_KiB + HistoryOfTenThousand_KiB);
#endif
}

TEST(PipesTest, AReaderThatHasEnoughEndsTheProgramQuietly)
{
    EXPECT_EQ("\r\n", shellOutput(KEL_NODE " getCtStatus 1 | head -n 1"));
    const std::string endless = "yes getXpicPreamble 1 2>/dev/null | { " KEL_NODE "; echo $? >&2; } | head -n 2";
    EXPECT_EQ("0\r\n0\r\n" + std::to_string(128 + SIGPIPE) + "\r\n", shellOutput(endless));
}

TEST(PipesTest, AParentThatIgnoresTheSignalChangesNothing)
{
    EXPECT_EQ("0\r\n", shellOutput("trap '' PIPE; yes getXpicPreamble 1 2>/dev/null | " KEL_NODE " | head -n 1"));
}

} // namespace
