#include "node/plot/Gnuplot.h"

#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>

#include <fmt/format.h>
#include <sys/wait.h>
#include <unistd.h>

#include "node/plot/Plot.h"
#include "node/plot/Program.h"

namespace node::plot
{

namespace
{

[[noreturn]] void fail(std::string_view reason)
{
    throw PlotError(fmt::format("gnuplot: {}", reason));
}

/// Ours, but for what changes how gnuplot writes: the locale, and the terminal that it would begin with.
std::vector<std::string> environment()
{
    std::vector<std::string> variables = {"LC_ALL=C"};
    for (char** variable = environ; *variable != nullptr; ++variable)
    {
        const std::string_view text = *variable;
        if (!text.starts_with("LC_ALL=") && !text.starts_with("GNUTERM="))
        {
            variables.emplace_back(text);
        }
    }
    return variables;
}

Ended carryOut(const std::string& script, const std::vector<std::string>& arguments)
{
    std::vector<std::string> words = {"gnuplot", "--default-settings"};
    words.insert(words.end(), arguments.begin(), arguments.end());
    try
    {
        return runProgram(std::move(words), environment(), script);
    }
    catch (const std::system_error& error)
    {
        // Permission is denied where PATH leads through folders that are closed to us.
        if (error.code() == std::errc::no_such_file_or_directory || error.code() == std::errc::permission_denied)
        {
            fail("found it not installed, expected it in PATH (on Debian: apt-get install gnuplot-nox)");
        }
        fail(error.code().message());
    }
}

/// The first line that says what is wrong; "" where none does. Before it gnuplot shows the command behind a prompt and
/// points into it.
std::string complaint(const std::string& text)
{
    std::istringstream lines(text);
    for (std::string line; std::getline(lines >> std::ws, line);)
    {
        const bool isCommand = line.starts_with("gnuplot> ") || line.starts_with("multiplot> ") || line == "^";
        if (!isCommand && line.find("warning:") == std::string::npos)
        {
            return line;
        }
    }
    return "";
}

/// What is wrong with the way it ended; "" where nothing is.
std::string objection(const Ended& ended)
{
    if (WIFSIGNALED(ended.status))
    {
        return fmt::format("found it ended by signal {}, expected a drawing", WTERMSIG(ended.status));
    }
    if (WEXITSTATUS(ended.status) != 0)
    {
        return fmt::format("found exit status {}, expected a drawing", WEXITSTATUS(ended.status));
    }
    return ended.output.empty() ? "found no output, expected a drawing" : "";
}

} // namespace

std::string runGnuplot(const std::string& script, const std::vector<std::string>& arguments)
{
    const Ended ended = carryOut(script, arguments);
    const std::string wrong = objection(ended);
    if (!wrong.empty())
    {
        const std::string said = complaint(ended.errors);
        fail(said.empty() ? wrong : said);
    }
    return ended.output;
}

} // namespace node::plot
