#pragma once

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/commands/Command.h"
#include "node/commands/RecordingConsole.h"
#include "node/commands/RecordingDesk.h"
#include "node/wording/InputError.h"

/// Commands of the command line at a recording console, without a node.
class ConsoleTest : public ::testing::Test
{
protected:
    node::commands::Outcome carryOut(const std::vector<std::string>& words)
    {
        RecordingDesk desk;
        desk.clear();
        const auto& command = node::commands::commandNamed(words.front());
        const auto outcome = command.call(desk, console, {words.begin() + 1, words.end()});
        EXPECT_THAT(desk.recorder.calls, ::testing::IsEmpty());
        EXPECT_THAT(desk.started, ::testing::IsEmpty());
        return outcome;
    }

    /// Carries out words that do not fit. @return the complaint
    std::string complaint(const std::vector<std::string>& words)
    {
        try
        {
            carryOut(words);
        }
        catch (const node::wording::InputError& error)
        {
            EXPECT_THAT(console.calls, ::testing::IsEmpty());
            return error.what();
        }
        return "done";
    }

    RecordingConsole console;
};
