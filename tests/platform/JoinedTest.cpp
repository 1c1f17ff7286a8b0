#include "kel_top_api/joined.h"

#include <gtest/gtest.h>

using kel_top_api::joined;

namespace
{

TEST(JoinedTest, HasThePartsOneAfterTheOther)
{
    EXPECT_EQ("one, two", joined({"one", "", ", ", "two"}));
    EXPECT_EQ("", joined({}));
}

TEST(JoinedTest, TakesJustTheMemoryOfItsParts)
{
    const std::string part(50, 'p');
    EXPECT_EQ(100U, joined({part, part}).capacity());
}

} // namespace
