#pragma once

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "node/cli/RecordingCommands.h"
#include "node/cli/Session.h"

/// A session of recording commands, and what it wrote.
class SessionTest : public ::testing::Test
{
protected:
    /// Carries out the lines of a script or those typed at a prompt.
    node::cli::Status run(const std::string& lines, node::cli::Session::Lines kind)
    {
        std::istringstream input(lines);
        return session.runLines(input, kind);
    }

    RecordingCommands commands;
    std::ostringstream output;
    std::ostringstream errors;
    node::cli::Session session{commands, output, errors};
};
