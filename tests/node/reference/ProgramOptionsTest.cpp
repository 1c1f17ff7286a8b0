#include <set>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "node/reference/ProgramOptions.h"

using node::reference::programOptions;
using node::reference::usage;

namespace
{

TEST(ProgramOptionsTest, AreTypedSo)
{
    EXPECT_EQ("-s, --scenario NAME|FILE", usage({'s', "scenario", "NAME|FILE", ""}));
    EXPECT_EQ("-h, --help", usage({'h', "help", "", ""}));
    EXPECT_EQ("--record FILE", usage({0, "record", "FILE", ""}));
    EXPECT_EQ("--json", usage({0, "json", "", ""}));
}

TEST(ProgramOptionsTest, EachHasALetterAndANameOfItsOwn)
{
    std::set<char> letters;
    std::set<std::string> names;
    for (const auto& option : programOptions())
    {
        EXPECT_TRUE(names.insert(option.name).second) << option.name;
        EXPECT_TRUE(option.letter == 0 || letters.insert(option.letter).second) << option.letter;
    }
}

} // namespace
