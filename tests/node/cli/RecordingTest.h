#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/cli/KeptAnswers.h"
#include "node/cli/Session.h"
#include "node/trace/TraceLibrary.h"
#include "support/TemporaryFolder.h"

/// A session at a desk of that kind, and a folder for recordings. Trace levels are as before when it ends.
template <typename AnyDesk>
class RecordingTestAt : public ::testing::Test
{
protected:
    ~RecordingTestAt() override
    {
        for (const auto& [channel, level] : m_levels)
        {
            node::trace::setLevel(channel, level);
        }
    }

    /// Carries out lines.
    /// @return what the last one answered
    node::output::Answer carryOut(const std::vector<std::string>& lines)
    {
        for (const std::string& line : lines)
        {
            session->carryOutLine(line, "<stdin>:1");
        }
        return output.answers.back();
    }

    /// Carries out lines that are to be done.
    void done(const std::vector<std::string>& lines)
    {
        for (const std::string& line : lines)
        {
            EXPECT_EQ(node::cli::Status::Done, session->carryOutLine(line)) << line;
        }
    }

    /// Ends the session.
    /// @return what is said of a recording by another one that replays it
    std::string replayed(const std::string& recording)
    {
        session.reset();
        return replayedAt(desk, recording);
    }

    static std::string replayedAt(AnyDesk& otherDesk, const std::string& recording)
    {
        KeptAnswers answers;
        node::cli::Session replaying(otherDesk, answers);
        replaying.carryOut({"replay", recording});
        const node::output::Answer& answer = answers.answers.at(0);
        EXPECT_EQ(1U, answers.answers.size());
        EXPECT_EQ(answer.error.empty(), answer.status == node::cli::Status::Done);
        return answer.outcome ? answer.outcome->output : answer.error;
    }

    std::string allOf(int commands) const
    {
        return file + ": " + std::to_string(commands) + (commands == 1 ? " command" : " commands") +
               ", each answered as recorded\n";
    }

    TemporaryFolder folder;
    std::string file = folder.pathOf("recording");
    AnyDesk desk;
    KeptAnswers output;
    std::optional<node::cli::Session> session{std::in_place, desk, output, withoutWaiting()};

private:
    static node::cli::Surroundings withoutWaiting()
    {
        node::cli::Surroundings surroundings;
        surroundings.wait = [](std::chrono::milliseconds) { return false; };
        return surroundings;
    }

    std::map<std::string, VemTraceLevel> m_levels = node::trace::levels();
};
