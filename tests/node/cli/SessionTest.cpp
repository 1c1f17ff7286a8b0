#include "node/cli/SessionTest.h"

#include <new>
#include <stdexcept>
#include <utility>

#include <gmock/gmock.h>

#include "node/commands/Command.h"
#include "node/reference/Help.h"
#include "node/trace/TraceLibrary.h"

using node::cli::Status;
using ::testing::ElementsAre;

namespace
{

TEST_F(SessionTest, StatusesAreTheProgramsExitStatuses)
{
    EXPECT_EQ(0, static_cast<int>(Status::Done));
    EXPECT_EQ(1, static_cast<int>(Status::CommandFailed));
    EXPECT_EQ(2, static_cast<int>(Status::NotUnderstood));
    EXPECT_EQ(3, static_cast<int>(Status::NotStarted));
}

TEST_F(SessionTest, ACommandPrintsItsReportAsItStands)
{
    commands.report = "\nno line end";
    EXPECT_EQ(Status::Done, session.carryOut({"getCtStatus", "2"}));
    EXPECT_EQ("\nno line end", output.str());
    EXPECT_EQ("", errors.str());
    EXPECT_THAT(commands.calls, ElementsAre("getCtStatus(2)"));
}

TEST_F(SessionTest, AFailedCommandPrintsItsReportAndSaysThatItFailed)
{
    commands.result = 1;
    commands.report = "Data could not be retrieved!";
    EXPECT_EQ(Status::CommandFailed, session.carryOut({"getBcmModemStatus", "1"}));
    EXPECT_EQ("Data could not be retrieved!", output.str());
    EXPECT_EQ("kel-node: getBcmModemStatus: failed\n", errors.str());
}

TEST_F(SessionTest, AnErrorBeginsWithItsPlace)
{
    EXPECT_EQ(Status::NotUnderstood, session.carryOut({"nonsense"}, "<stdin>:3"));
    commands.result = 1;
    EXPECT_EQ(Status::CommandFailed, session.carryOut({"startDpd", "1"}, "<stdin>:4"));
    EXPECT_EQ("kel-node: <stdin>:3: command: found \"nonsense\", expected one that \"help\" lists\n"
              "kel-node: <stdin>:4: startDpd: failed\n",
              errors.str());
}

TEST_F(SessionTest, ACommandThatThrowsFailedForThatReason)
{
    commands.duringCall = [] { throw std::runtime_error("the service is gone"); };
    EXPECT_EQ(Status::CommandFailed, session.carryOut({"getCtStatus", "1"}));
    commands.duringCall = [] { throw std::bad_alloc(); };
    EXPECT_EQ(Status::CommandFailed, session.carryOut({"stopDpd", "1"}, "<stdin>:7"));
    EXPECT_EQ("", output.str());
    EXPECT_EQ("kel-node: getCtStatus: threw the service is gone\n"
              "kel-node: <stdin>:7: stopDpd: threw std::bad_alloc\n",
              errors.str());
}

TEST_F(SessionTest, HelpPrintsTheOverview)
{
    EXPECT_EQ(Status::Done, session.carryOut({"help"}));
    EXPECT_EQ(node::reference::overview(), output.str());
}

TEST_F(SessionTest, HelpOfACommandDescribesIt)
{
    EXPECT_EQ(Status::Done, session.carryOut({"help", "setPpsSource"}));
    EXPECT_EQ(node::reference::describe(node::commands::commandNamed("setPpsSource")), output.str());
}

TEST_F(SessionTest, AsksItsSurroundings)
{
    EXPECT_EQ(80, session.size().columns);
    EXPECT_EQ(24, session.size().rows);
    node::cli::Surroundings surroundings;
    surroundings.size = [] { return node::terminal::Size{132, 50}; };
    surroundings.create = [](const std::string& file) { return std::make_unique<std::ostringstream>(file); };
    node::cli::Session asking(desk, textOutput, surroundings);
    EXPECT_EQ(132, asking.size().columns);
    EXPECT_EQ(50, asking.size().rows);
    const auto made = asking.create("/absent/file");
    ASSERT_NE(nullptr, made);
    EXPECT_EQ("/absent/file", dynamic_cast<std::ostringstream&>(*made).str());
    EXPECT_EQ(nullptr, session.create("/absent/file"));
}

TEST_F(SessionTest, AMessageThatACommandLeftOpenStandsBeforeItsReport)
{
    auto before = node::trace::setSink([this](const auto& message) { output << toLine(message); });
    VemTrace trace("SessionTest", 3);
    commands.result = 1;
    commands.duringCall = [&]
    {
        trace.beginLogMsg(1, {});
        trace.messageStream() << "left open";
    };
    EXPECT_EQ(Status::CommandFailed, session.carryOut({"getCtStatus", "1"}));
    EXPECT_EQ("[SessionTest] level 1: left open\nthe report\n", output.str());
    node::trace::setSink(std::move(before));
}

TEST_F(SessionTest, AMessageThatAThrowingCommandLeftOpenStandsBeforeItsError)
{
    auto before = node::trace::setSink([this](const auto& message) { errors << toLine(message); });
    VemTrace trace("SessionTest", 3);
    commands.duringCall = [&]
    {
        trace.beginLogMsg(1, {});
        trace.messageStream() << "left open";
        throw std::runtime_error("the service is gone");
    };
    EXPECT_EQ(Status::CommandFailed, session.carryOut({"startDpd", "1"}));
    EXPECT_EQ("[SessionTest] level 1: left open\nkel-node: startDpd: threw the service is gone\n", errors.str());
    node::trace::completeOpenMessage();
    node::trace::setSink(std::move(before));
}

} // namespace
