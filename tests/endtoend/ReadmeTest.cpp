#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "endtoend/PageExamples.h"
#include "support/TemporaryFolder.h"
#include "support/Terminal.h"

namespace
{

std::vector<Example> examples()
{
    return examplesOf("README.md");
}

/// What the example's command writes to standard output, with the program that was just built in place of the script.
std::string outputOf(const Example& example)
{
    std::string command = example.command;
    const std::string script = "script/run";
    const auto place = command.find(script);
    EXPECT_NE(std::string::npos, place) << command;
    command.replace(place, script.size(), KEL_NODE);

    const ShellRun run = runShell(command);
    EXPECT_EQ(expectedStatus(example), run.status) << command;
    return run.output;
}

/// What a person sees who types at the prompt what the example shows there.
std::string dialogueOf(const Example& example)
{
    const std::regex prompt(R"((kel-node \d+:\d\d:\d\d\.\d> )(.*))");
    const TemporaryFolder folder;
    const std::string command = std::regex_replace(example.command, std::regex("script/run"), KEL_NODE);
    const Terminal terminal({"/bin/sh", "-c", "cd " + folder.path() + " && exec " + command},
                            std::vector<std::string>{"TERM=dumb", "HOME=" + folder.path()});
    std::string seen;
    std::istringstream shown(example.output);
    for (std::string line; std::getline(shown, line);)
    {
        std::smatch parts;
        if (std::regex_match(line, parts, prompt))
        {
            seen += terminal.readUntil(parts[1]);
            terminal.type(parts[2].str() + "\n");
        }
    }
    return std::regex_replace(seen + terminal.readToTheEnd(), std::regex("\r\n"), "\n");
}

bool isDialogue(const Example& example)
{
    return example.output.starts_with("A simulated node.");
}

TEST(ReadmeTest, ShowsTheFirstFiveMinutesAReportAndScripts)
{
    ASSERT_EQ(5U, examples().size());
    EXPECT_EQ("script/run --clock told", examples()[0].command);
    EXPECT_TRUE(isDialogue(examples()[0]));
    EXPECT_EQ("script/run getCtStatus 1", examples()[1].command);
    EXPECT_NE(std::string::npos, examples()[2].command.find("| script/run"));
    EXPECT_NE(std::string::npos, examples()[3].command.find("| script/run --scenario rain-front"));
    EXPECT_NE(std::string::npos, examples()[4].command.find("addFault"));
}

TEST(ReadmeTest, TheFirstFiveMinutesAreWhatIsSeenAtATerminal)
{
    EXPECT_EQ(examples().at(0).output, dialogueOf(examples().at(0)));
}

TEST(ReadmeTest, EveryExampleShowsWhatItPrints)
{
    for (const Example& example : examples())
    {
        if (!isDialogue(example))
        {
            EXPECT_EQ(example.output, outputOf(example)) << example.command;
        }
    }
}

} // namespace
