#pragma once

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "node/cli/Script.h"
#include "node/cli/Session.h"
#include "node/commands/RecordingDesk.h"
#include "node/output/TextOutput.h"

/// A session at a recording desk, and what it wrote.
class SessionTest : public ::testing::Test
{
protected:
    /// Carries out the lines of a script named "<stdin>".
    node::cli::Status runScript(const std::string& lines, node::cli::AtFailure atFailure = node::cli::AtFailure::Stop)
    {
        std::istringstream input(lines);
        return node::cli::runScript(session, input, "<stdin>", atFailure);
    }

    /// Carries out a line that is to be done without a complaint.
    /// @return what it printed
    std::string done(const std::string& line)
    {
        output.str("");
        EXPECT_EQ(node::cli::Status::Done, runScript(line)) << line;
        EXPECT_EQ("", errors.str()) << line;
        return output.str();
    }

    /// Carries out a line that is to end with that status and to print nothing.
    /// @return what it complained of, without the program's name, its place and the line end
    std::string complaint(node::cli::Status status, const std::string& line)
    {
        output.str("");
        errors.str("");
        EXPECT_EQ(status, runScript(line)) << line;
        EXPECT_EQ("", output.str()) << line;
        const std::string text = errors.str();
        const std::string begin = "kel-node: <stdin>:1: ";
        EXPECT_TRUE(text.starts_with(begin) && text.ends_with('\n')) << text;
        errors.str("");
        return text.size() > begin.size() ? text.substr(begin.size(), text.size() - begin.size() - 1) : text;
    }

    RecordingDesk desk;
    RecordingCommands& commands = desk.recorder;
    std::ostringstream output;
    std::ostringstream errors;
    node::output::TextOutput textOutput{output, errors};
    node::cli::Session session{desk, textOutput};
};
