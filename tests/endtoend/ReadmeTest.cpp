#include <array>
#include <cstdio>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include <sys/wait.h>

#include <gtest/gtest.h>

#include "node/commands/TemporaryFolder.h"
#include "terminal/Terminal.h"

namespace
{

/// A command that the README shows at a shell's prompt, and the output that it shows below.
struct Example
{
    std::string command;
    std::string output;
};

std::vector<Example> examples()
{
    const std::string fence = "```";
    std::vector<Example> found;
    std::ifstream readme(KEL_SOURCE_DIR "/README.md");
    bool inBlock = false;
    bool inExample = false;
    for (std::string line; std::getline(readme, line);)
    {
        if (line.starts_with(fence))
        {
            inBlock = !inBlock;
            inExample = false;
        }
        else if (inBlock && line.starts_with("$ "))
        {
            inExample = true;
            found.push_back({line.substr(2), ""});
        }
        else if (inExample)
        {
            found.back().output += line + "\n";
        }
    }
    return found;
}

/// A command that fails ends so, and the README shows it.
int expectedStatus(const Example& example)
{
    return example.output.ends_with(": failed\n") ? 1 : 0;
}

/// What the example's command writes to standard output, with the program that was just built in place of the script.
std::string outputOf(const Example& example)
{
    std::string command = example.command;
    const std::string script = "script/run";
    const auto place = command.find(script);
    EXPECT_NE(std::string::npos, place) << command;
    command.replace(place, script.size(), KEL_NODE);

    std::string output;
    std::FILE* const pipe = popen(command.c_str(), "r");
    std::array<char, 4096> piece{};
    for (std::size_t length = 0; (length = std::fread(piece.data(), 1, piece.size(), pipe)) > 0;)
    {
        output.append(piece.data(), length);
    }
    EXPECT_EQ(expectedStatus(example), WEXITSTATUS(pclose(pipe))) << command;
    return output;
}

/// What a person sees who types at the prompt what the example shows there.
std::string dialogueOf(const Example& example)
{
    const std::regex prompt("(kel-node \\d+:\\d\\d:\\d\\d\\.\\d> )(.*)");
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
