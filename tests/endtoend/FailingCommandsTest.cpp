#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "endtoend/Program.h"

namespace
{

/// A command that fails, and what it writes to standard error.
struct Row
{
    std::string command;
    std::string errors;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.command;
}

class FailingCommandsTest : public ::testing::TestWithParam<Row>
{
};

TEST_P(FailingCommandsTest, EndWithStatus1AndTheModulesMessage)
{
    const Finished run = runCommand(GetParam().command);
    EXPECT_EQ("", run.output);
    EXPECT_EQ(GetParam().errors, withoutSourceLines(run.errors));
    EXPECT_EQ(1, run.status);
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, FailingCommandsTest,
    ::testing::Values(Row{"setPpsSource 1 3 0", "kel-node: setPpsSource: failed\n"},
                      Row{"setPpsSource 1 -1 0", "kel-node: setPpsSource: failed\n"},
                      Row{"calibratePps 2 4 0", "kel-node: calibratePps: failed\n"},
                      Row{"setPpsOutputMode 1 3", "kel-node: setPpsOutputMode: failed\n"},
                      Row{"setXpicPreamble 1 4",
                          traced("setXpicPreamble", "preamble: found a number out of range, expected 0 to 3") +
                              "kel-node: setXpicPreamble: failed\n"},
                      Row{"xpicAcquireStart 1 3 0",
                          traced("xpicAcquireStart", "acquire mode: found a number out of range, expected 0 to 2") +
                              "kel-node: xpicAcquireStart: failed\n"},
                      Row{"xpicAcquireStart 2 0 4",
                          traced("xpicAcquireStart", "acquire option: found a number out of range, expected 0 to 3") +
                              "kel-node: xpicAcquireStart: failed\n"}));

TEST(FailingCommandsTest, EndAScriptAtTheirLine)
{
    const Finished run = runScript("setXpicSlaveMute 1 1\n"
                                   "xpicAcquireStart 2 0 0\n"
                                   "\n"
                                   "xpicAcquireStart 1 0 0\n"
                                   "getXpicPreamble 1\n");
    EXPECT_EQ("", run.output);
    EXPECT_EQ(traced("xpicAcquireStart", "acquisition: found the slave muted, expected it unmuted") +
                  "kel-node: <stdin>:4: xpicAcquireStart: failed\n",
              withoutSourceLines(run.errors));
    EXPECT_EQ(1, run.status);
}

} // namespace
