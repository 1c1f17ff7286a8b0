#include "endtoend/PageExamples.h"

#include <array>
#include <cstdio>
#include <fstream>

#include <sys/wait.h>

std::vector<Example> examplesOf(const std::string& page)
{
    const std::string fence = "```";
    std::vector<Example> found;
    std::ifstream lines(KEL_SOURCE_DIR "/" + page);
    bool inBlock = false;
    bool inExample = false;
    for (std::string line; std::getline(lines, line);)
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

int expectedStatus(const Example& example)
{
    return example.output.ends_with(": failed\n") ? 1 : 0;
}

ShellRun runShell(const std::string& command)
{
    ShellRun run;
    std::FILE* const pipe = popen(command.c_str(), "r");
    std::array<char, 4096> piece{};
    for (std::size_t length = 0; (length = std::fread(piece.data(), 1, piece.size(), pipe)) > 0;)
    {
        run.output.append(piece.data(), length);
    }
    run.status = WEXITSTATUS(pclose(pipe));
    return run;
}
