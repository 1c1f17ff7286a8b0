#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/commands/Command.h"
#include "node/reference/Place.h"

using node::commands::Argument;
using node::commands::Command;
using node::commands::Extent;
using node::reference::placeIn;

namespace
{

Argument argument(const std::string& name, Extent extent = Extent::Word)
{
    return {.name = name, .form = "", .meaning = "", .extent = extent};
}

Argument optional(const std::string& name)
{
    return {.name = name, .form = "", .meaning = "", .optional = true};
}

Argument option(const std::string& word, const std::string& name)
{
    return {.name = name, .form = "", .meaning = "", .optional = true, .option = word};
}

/// "[-n|-c] a (word,...) $": options, argument with its words, and '$' where the command may end.
std::string placeText(const std::vector<Argument>& arguments, const std::vector<std::string>& words)
{
    const Command command{"command", "", arguments, "", nullptr};
    const auto place = placeIn(command, words);
    std::vector<std::string> options;
    for (const Argument* each : place.options)
    {
        options.push_back(each->option);
    }
    std::string text = fmt::format("[{}] ", fmt::join(options, "|"));
    text += place.argument == nullptr ? "" : fmt::format("{} ({}) ", place.argument->name, fmt::join(place.words, ","));
    return text + (place.mayEnd ? "$" : "");
}

TEST(PlaceTest, BehindTheLastArgumentTheLineEnds)
{
    EXPECT_EQ("[] $", placeText({}, {""}));
    EXPECT_EQ("[] $", placeText({}, {"x", "y"}));
    EXPECT_EQ("[] $", placeText({argument("a")}, {"1", ""}));
}

TEST(PlaceTest, ArgumentsStandOneBehindTheOther)
{
    const std::vector<Argument> arguments = {argument("a"), argument("b")};
    EXPECT_EQ("[] a () ", placeText(arguments, {""}));
    EXPECT_EQ("[] a (1) ", placeText(arguments, {"1"}));
    EXPECT_EQ("[] b () ", placeText(arguments, {"1", ""}));
    EXPECT_EQ("[] b (2) ", placeText(arguments, {"1", "2"}));
}

TEST(PlaceTest, TheLineMayEndBeforeAnOptionalArgument)
{
    const std::vector<Argument> arguments = {argument("a"), optional("b"), optional("c")};
    EXPECT_EQ("[] a () ", placeText(arguments, {""}));
    EXPECT_EQ("[] b () $", placeText(arguments, {"1", ""}));
    EXPECT_EQ("[] c () $", placeText(arguments, {"1", "2", ""}));
}

TEST(PlaceTest, AnArgumentMayTakeAllWords)
{
    const std::vector<Argument> arguments = {argument("a"), argument("b", Extent::Words)};
    EXPECT_EQ("[] b () ", placeText(arguments, {"1", ""}));
    EXPECT_EQ("[] b (2,) $", placeText(arguments, {"1", "2", ""}));
    EXPECT_EQ("[] b (2,3,4) $", placeText(arguments, {"1", "2", "3", "4"}));
}

TEST(PlaceTest, OptionsStandBeforeAllOthersEachOnce)
{
    const std::vector<Argument> arguments = {option("-n", "seconds"), option("-c", "count"), argument("a"),
                                             argument("b")};
    EXPECT_EQ("[-n|-c] a () ", placeText(arguments, {""}));
    EXPECT_EQ("[-n|-c] a (-n) ", placeText(arguments, {"-n"}));
    EXPECT_EQ("[] seconds () ", placeText(arguments, {"-n", ""}));
    EXPECT_EQ("[] count (5) ", placeText(arguments, {"-c", "5"}));
    EXPECT_EQ("[-n] a () ", placeText(arguments, {"-c", "5", ""}));
    EXPECT_EQ("[] seconds (-c) ", placeText(arguments, {"-c", "5", "-n", "-c"}));
    EXPECT_EQ("[] a () ", placeText(arguments, {"-c", "5", "-n", "1", ""}));
    EXPECT_EQ("[] b () ", placeText(arguments, {"-c", "5", "1", ""}));
    EXPECT_EQ("[] b () ", placeText(arguments, {"1", ""}));
}

TEST(PlaceTest, OptionsMayHaveTheirValueInTheSameWord)
{
    const std::vector<Argument> arguments = {option("-n", "seconds"), option("-c", "count"), argument("a")};
    EXPECT_EQ("[-c] a () ", placeText(arguments, {"-n5", ""}));
    EXPECT_EQ("[] a () ", placeText(arguments, {"-n5", "-c1", ""}));
    EXPECT_EQ("[] count () ", placeText(arguments, {"-n5", "-c", ""}));
}

TEST(PlaceTest, TwoHyphensEndTheOptions)
{
    const std::vector<Argument> arguments = {option("-n", "seconds"), argument("a"), argument("b")};
    EXPECT_EQ("[] a () ", placeText(arguments, {"--", ""}));
    EXPECT_EQ("[] a (-) ", placeText(arguments, {"-n", "1", "--", "-"}));
    EXPECT_EQ("[] b () ", placeText(arguments, {"--", "-n", ""}));
    EXPECT_EQ("[] seconds (--) ", placeText(arguments, {"-n", "--"}));
    EXPECT_EQ("[-n] a (--) ", placeText(arguments, {"--"}));                      // the cursor is still at it
    EXPECT_EQ("[] b () ", placeText({argument("a"), argument("b")}, {"--", ""})); // there are no options to end
}

TEST(PlaceTest, AnOptionThatIsGivenAgainTakesAValueAllTheSame)
{
    const std::vector<Argument> arguments = {option("-n", "seconds"), argument("a", Extent::Command)};
    EXPECT_EQ("[] seconds () ", placeText(arguments, {"-n", "1", "-n", ""}));
    EXPECT_EQ("[] a () ", placeText(arguments, {"-n", "1", "-n", "1", ""}));
}

TEST(PlaceTest, AWordThatOnlyLooksLikeAnOptionIsAnArgument)
{
    EXPECT_EQ("[] b () ", placeText({option("-n", "seconds"), argument("a"), argument("b")}, {"-5", ""}));
    EXPECT_EQ("[] b () ", placeText({argument("a"), argument("b")}, {"", ""}));
}

} // namespace
