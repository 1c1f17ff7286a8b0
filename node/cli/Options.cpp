#include "node/cli/Options.h"

#include <algorithm>
#include <functional>
#include <map>

#include <fmt/format.h>
#include <getopt.h>

#include "node/commands/Value.h"
#include "node/reference/ProgramOptions.h"
#include "node/wording/InputError.h"

namespace node::cli
{

namespace
{

using wording::InputError;
using wording::quoted;

bool parseClock(const std::string& word)
{
    if (word != reference::WallClock && word != reference::ToldClock)
    {
        throw InputError("option --clock", quoted(word),
                         fmt::format("{} or {}", reference::ToldClock, reference::WallClock));
    }
    return word == reference::WallClock;
}

/// "CHANNELS" or "CHANNELS:LEVEL"
Options::Trace parseTrace(const std::string& word)
{
    const auto colon = word.rfind(':');
    if (colon == std::string::npos)
    {
        return {word};
    }
    const auto level = commands::TraceLevel::parse(word.substr(colon + 1));
    if (!level)
    {
        throw InputError("option --trace (level)", quoted(word.substr(colon + 1)), commands::TraceLevel::form());
    }
    return {word.substr(0, colon), level->level};
}

/// What each option does with its value, by its long name.
std::map<std::string, std::function<void(const std::string&)>> actions(Options& options)
{
    return {
        {"clock", [&](const std::string& value) { options.clockOnTheWall = parseClock(value); }},
        {"complete", [&](const std::string& value) { options.complete = value; }},
        {"file", [&](const std::string& value) { options.file = value; }},
        {"help", [&](const std::string&) { options.help = true; }},
        {"json", [&](const std::string&) { options.json = true; }},
        {"keep-going", [&](const std::string&) { options.keepGoing = true; }},
        {"record", [&](const std::string& value) { options.record = value; }},
        {"scenario", [&](const std::string& value) { options.scenario = value; }},
        {"trace", [&](const std::string& value) { options.trace = parseTrace(value); }},
        {"trace-file", [&](const std::string& value) { options.traceFile = value; }},
        {"version", [&](const std::string&) { options.version = true; }},
    };
}

} // namespace

void readOptions(int argc, char** argv, Options& options)
{
    // "+": what follows the command is the command's, negative numbers among it. ":": a missing value has its own
    // answer.
    std::string letters = "+:";
    std::vector<option> table;
    std::vector<std::string> longForms;
    std::map<int, std::string> names; // by what getopt_long() answers
    int answer = 1 << 8;              // beyond all letters
    const auto add = [&](const std::string& name, char letter, bool takesValue)
    {
        const int code = letter == 0 ? answer++ : letter;
        names[code] = name;
        table.push_back({names[code].c_str(), takesValue ? required_argument : no_argument, nullptr, code});
        letters += letter == 0 ? "" : letter + std::string(takesValue ? ":" : "");
    };
    for (const reference::ProgramOption& known : reference::programOptions())
    {
        add(known.name, known.letter, !known.value.empty());
        longForms.push_back("--" + known.name);
    }
    add("complete", 0, true); // for shells, not for people
    table.push_back({});

    const auto actionOf = actions(options);
    opterr = 0;
    optind = 0; // begins anew, whatever was read before
    for (;;)
    {
        const int next = std::max(optind, 1);
        const std::string word = next < argc ? argv[next] : "";
        const int found = getopt_long(argc, argv, letters.c_str(), table.data(), nullptr);
        switch (found)
        {
        case -1:
            options.words.assign(argv + optind, argv + argc);
            return;
        case ':':
            throw InputError("option " + word, "nothing", "a value");
        case '?':
            throw InputError("option", quoted(word),
                             "one that \"kel-node --help\" lists" + wording::didYouMean(word, longForms));
        default:
            actionOf.at(names.at(found))(optarg == nullptr ? "" : optarg);
        }
    }
}

} // namespace node::cli
