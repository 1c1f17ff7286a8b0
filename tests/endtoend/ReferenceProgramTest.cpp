#include <string>

#include <gtest/gtest.h>

#include "node/cli/Transcript.h"
#include "node/reference/BashCompletion.h"
#include "node/reference/CommandReference.h"
#include "node/reference/ManPage.h"
#include "support/Shell.h"

namespace
{

/// The program that the build makes the documents with, and contributors docs/commands.md.
Ended printed(const std::string& arguments)
{
    return inShell(KEL_EMULATOR " " + shellWord(KEL_NODE_REFERENCE) + " " + arguments);
}

TEST(ReferenceProgramTest, PrintsEachDocument)
{
    EXPECT_EQ(node::reference::manPage("1.2.3", "2026-01-31"), printed("man 1.2.3 2026-01-31").output);
    EXPECT_EQ(node::reference::commandReference(node::cli::transcript), printed("commands").output);
    EXPECT_EQ(node::reference::bashCompletion(), printed("bash").output);
}

TEST(ReferenceProgramTest, EveryOtherWordingIsRefused)
{
    for (const char* arguments :
         {"", "picture", "man 1.2.3", "man 1.2.3 2026-01-31 more", "commands more", "bash more"})
    {
        const Ended ended = printed(arguments);
        EXPECT_EQ(2, ended.status) << arguments;
        EXPECT_EQ("Usage: kel-node-reference man VERSION DATE | commands | bash\n", ended.output) << arguments;
    }
}

TEST(ReferenceProgramTest, DocumentThatDoesNotFitFails)
{
    EXPECT_EQ(0, printed("commands >/dev/null").status);
    EXPECT_EQ(1, printed("commands >/dev/full").status);
}

} // namespace
