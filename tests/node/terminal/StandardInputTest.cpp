#include "node/terminal/StandardInput.h"

#include <string>

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

TEST(StandardInputTest, NothingTypedIsNeitherWaitedForNorTheEnd)
{
    const TypedInput input;
    std::string bytes = "one";
    EXPECT_TRUE(readInput(bytes));
    EXPECT_EQ("one", bytes);
}

} // namespace
