#include "node/terminal/StandardInput.h"

#include <string>

#include <fcntl.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "node/terminal/TypedInput.h"

using node::terminal::readInput;

namespace
{

TEST(StandardInputTest, WhatIsReadStandsBehindWhatWasThere)
{
    TypedInput input;
    std::string bytes = "one";
    input.type(" two");
    EXPECT_TRUE(readInput(bytes));
    EXPECT_EQ("one two", bytes);
    input.end();
    EXPECT_FALSE(readInput(bytes));
    EXPECT_EQ("one two", bytes);
}

TEST(StandardInputTest, NothingTypedYetIsNotTheEnd)
{
    const TypedInput input;
    // As somebody who had the terminal before may have left it.
    ASSERT_EQ(0, fcntl(STDIN_FILENO, F_SETFL, O_NONBLOCK));
    std::string bytes = "one";
    EXPECT_TRUE(readInput(bytes));
    EXPECT_EQ("one", bytes);
}

} // namespace
