#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/Shell.h"
#include "support/TemporaryFolder.h"
#include "support/Terminal.h"

namespace
{

constexpr const char* Package = "/usr/share/bash-completion/bash_completion";

/// A person at bash, with the program in the path.
class BashCompletionTest : public ::testing::Test
{
protected:
    /// @param first  the line that lets bash know the completion
    void begin(const std::string& first) const
    {
        bash.readUntil("$ ");
        type(first + "; echo ready\n", "\nready\r\n$ ");
    }

    /// Types the keys, and waits for what appears.
    void type(const std::string& keys, const std::string& awaited) const
    {
        bash.type(keys);
        const std::string seen = bash.readUntil(awaited);
        EXPECT_TRUE(seen.ends_with(awaited)) << seen;
    }

    TemporaryFolder folder;
    // No bell, no brackets around what is pasted, lists without questions: what appears is what is tested.
    std::string inputrc = folder.write("inputrc", "set bell-style none\n"
                                                  "set enable-bracketed-paste off\n"
                                                  "set show-all-if-ambiguous on\n"
                                                  "set page-completions off\n"
                                                  "set completion-query-items 0\n");
    Terminal bash{{"/bin/bash", "--norc", "--noprofile"},
                  {{"HOME=" + folder.path(), "INPUTRC=" + inputrc, "TERM=dumb", "PS1=$ ", "LC_ALL=C.UTF-8",
                    "PATH=" + std::filesystem::path(KEL_NODE).parent_path().string() + ":/usr/bin:/bin"}},
                  {.rows = 50, .columns = 120}};
};

const std::string Source = std::string("source ") + KEL_BASH_COMPLETION;

TEST_F(BashCompletionTest, CompletesACommandThatThenRuns)
{
    begin(Source);
    type("kel-node getXpicP\t", "kel-node getXpicPreamble ");
    type("1\n", "1\r\n0\r\n$ ");
}

TEST_F(BashCompletionTest, ListsTheCommandsThatBeginSo)
{
    begin(Source);
    type("kel-node setXpic\t", "setXpicCable      setXpicPreamble   setXpicSlaveMute  \r\n$ kel-node setXpic");
}

TEST_F(BashCompletionTest, CompletesKeysAndTheirValuesWithoutABlankBetween)
{
    begin(Source);
    type("kel-node addFault tiMa\t", "kel-node addFault tiManageXpic ");
    type("fr\t", "from_call=");
    type("2 th\t", "2 throws=");
    type("false\n", "$ ");
    type("echo $?\n", "\r\n0\r\n$ ");
}

TEST_F(BashCompletionTest, CompletesOptionsAndTheirValues)
{
    begin(Source);
    type("kel-node --sc\t", "kel-node --scenario ");
    type("rain\t", "rain-front ");
    type("--clock=t\t", "--clock=told ");
    type("getXpicP\t1\n", "getXpicPreamble 1\r\n0\r\n$ ");
}

TEST_F(BashCompletionTest, CompletesNamesWithBlanks)
{
    folder.write("my lines.txt", "getXpicPreamble 1\n");
    begin(Source + "; cd");
    type("kel-node -f my\t", "kel-node -f my\\ lines.txt ");
    type("\n", "\r\n0\r\n$ ");
    type("kel-node --file=\"my\t", "kel-node --file=\"my lines.txt\" ");
    type("\n", "\r\n0\r\n$ ");
    type("kel-node replay my\t", "kel-node replay my\\ lines.txt ");
}

TEST_F(BashCompletionTest, IsFoundByThePackageThatLoadsCompletions)
{
    if (!std::filesystem::exists(Package))
    {
        GTEST_SKIP() << "bash-completion is not installed";
    }
    const std::filesystem::path completions = folder.pathOf("completions");
    std::filesystem::create_directory(completions);
    std::filesystem::copy_file(KEL_BASH_COMPLETION, completions / "kel-node");
    begin("BASH_COMPLETION_USER_DIR=~; source " + std::string(Package));
    type("kel-node setR\t", "kel-node setRain ");
    type("\x15kel-node addFault tiManageXpic th\t", "tiManageXpic throws=");
}

} // namespace
