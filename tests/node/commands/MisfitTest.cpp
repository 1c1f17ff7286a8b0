#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/commands/Binding.h"
#include "node/commands/RecordingConsole.h"
#include "node/commands/RecordingDesk.h"

using node::commands::ArgumentText;
using node::commands::Command;
using node::commands::Count;
using node::commands::Desk;
using node::commands::makeCommand;
using node::commands::Misfit;
using node::commands::Option;
using node::commands::Switch;

namespace
{

const std::vector<ArgumentText> Names = {{"first", ""}, {"count", ""}, {"second", ""}};

/// What is said when a command's function throws the misfit.
template <const Misfit& misfit>
std::string complaint()
{
    const auto refuse = [](Desk& /*desk*/, Switch /*first*/, const Option<'c', Count>& /*count*/,
                           Switch /*second*/) -> std::string { throw misfit; };
    const Command command = makeCommand("refuse", +refuse, "", Names);
    RecordingDesk desk;
    RecordingConsole console;
    try
    {
        return command.call(desk, console, {"-c", "1", "on", "off"}).output;
    }
    catch (const node::wording::InputError& error)
    {
        return error.what();
    }
}

const Misfit First = {"first", "it", "another one"};
const Misfit Second = {"second", "it", "another one"};
const Misfit OfOption = {"count", "it", "another one"};
const Misfit OfTheForm = {"second", "it"};
const Misfit Unknown = {"third", "it"};

TEST(MisfitTest, IsToldAtThePlaceThatTheRowGivesTheArgument)
{
    EXPECT_EQ("refuse: argument 1 (first): found it, expected another one", complaint<First>());
    EXPECT_EQ("refuse: argument 2 (second): found it, expected another one", complaint<Second>());
    EXPECT_EQ("refuse: option -c (count): found it, expected another one", complaint<OfOption>());
}

TEST(MisfitTest, ExpectsTheFormOfTheArgumentWhereItSaysNothingElse)
{
    EXPECT_EQ("refuse: argument 2 (second): found it, expected on or off", complaint<OfTheForm>());
}

TEST(MisfitTest, OfAnArgumentThatTheRowDoesNotHaveIsAMistakeInTheProgram)
{
    EXPECT_THROW(complaint<Unknown>(), std::logic_error);
}

} // namespace
