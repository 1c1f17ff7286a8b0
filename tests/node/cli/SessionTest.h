#pragma once

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "node/cli/RecordingDesk.h"
#include "node/cli/Session.h"

/// A session at a recording desk, and what it wrote.
class SessionTest : public ::testing::Test
{
protected:
    /// Carries out the lines of a script or those typed at a prompt.
    node::cli::Status run(const std::string& lines, node::cli::Session::Lines kind)
    {
        std::istringstream input(lines);
        return session.runLines(input, kind);
    }

    /// Carries out a line that is to be done without a complaint.
    /// @return what it printed
    std::string done(const std::string& line)
    {
        output.str("");
        EXPECT_EQ(node::cli::Status::Done, run(line, node::cli::Session::Lines::FromScript)) << line;
        EXPECT_EQ("", errors.str()) << line;
        return output.str();
    }

    /// Carries out a line that is to end with that status and to print nothing.
    /// @return what it complained of, without the program's name, the line's number and the line end
    std::string complaint(node::cli::Status status, const std::string& line)
    {
        output.str("");
        errors.str("");
        EXPECT_EQ(status, run(line, node::cli::Session::Lines::FromScript)) << line;
        EXPECT_EQ("", output.str()) << line;
        const std::string text = errors.str();
        const std::string begin = "kel-node: line 1: ";
        EXPECT_TRUE(text.starts_with(begin) && text.ends_with('\n')) << text;
        errors.str("");
        return text.size() > begin.size() ? text.substr(begin.size(), text.size() - begin.size() - 1) : text;
    }

    RecordingDesk desk;
    RecordingCommands& commands = desk.recorder;
    std::ostringstream output;
    std::ostringstream errors;
    node::cli::Session session{desk, output, errors};
};
