#include "bench/Programs.h"

#include <csignal>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Program.h"
#include "bench/Timed.h"

namespace bench
{

namespace
{

void registerStart(const std::string& name, const std::vector<std::string>& words)
{
    const auto start = [words](benchmark::State& state)
    {
        for (auto _ : state)
        {
            run(words, "");
        }
    };
    constexpr int Starts = 300; // each timed by itself: a mean of some has what else the machine did meanwhile
    registerTimed(name, start)->Iterations(1)->Repetitions(Starts)->UseRealTime()->Unit(benchmark::kMicrosecond);
}

std::string repeated(const std::string& text, int times)
{
    std::string all;
    all.reserve(text.size() * static_cast<std::size_t>(times));
    for (int time = 0; time < times; ++time)
    {
        all += text;
    }
    return all;
}

/// A program that reads lines, and what it has to print.
struct Reader
{
    std::string name;
    std::vector<std::string> words;
    std::string first;
    std::string line;
    int lines;
    std::string last;
    std::string output;
};

void registerReader(const Reader& reader)
{
    const auto read = [reader, memory_KiB = std::optional<long>()](benchmark::State& state) mutable
    {
        const std::string input = reader.first + repeated(reader.line, reader.lines) + reader.last;
        if (!memory_KiB) // once of the many times that this is run
        {
            const Done done = ask(reader.words, input);
            if (done.output != reader.output)
            {
                throw std::runtime_error(reader.name + ": found another output than expected");
            }
            memory_KiB = done.memory_KiB;
        }
        state.counters["memory_KiB"] = static_cast<double>(*memory_KiB);
        for (auto _ : state)
        {
            run(reader.words, input);
        }
        state.counters["lines"] = reader.lines;
    };
    registerTimed(reader.name, read)->UseRealTime()->Unit(benchmark::kMillisecond);
}

/// Statements that make a table of a text's lines.
std::string tableOf(const std::string& text)
{
    std::string statements = "create table report(line text);\n";
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
    {
        statements += "insert into report values('" + line + "');\n";
    }
    return statements;
}

void registerReaders()
{
    const std::vector<std::string> node = {KEL_NODE};
    const std::vector<std::string> sqlite = {"/usr/bin/sqlite3", "-batch", "-init", "/dev/null", ":memory:"};

    // The node's shortest command, which prints nothing: a fault that is still to come counts it.
    constexpr int Trivial = 100'000;
    const std::string fault = "IDpdControllerSplit.start code=32768 from_call=1000000";
    registerReader({"startDpd lines/kel-node", node, "addFault " + fault + "\n", "startDpd 1\n", Trivial,
                    "listFaults\n", fault + ": seen " + std::to_string(Trivial) + ", hit 0\n"});
    registerReader({"startDpd lines/sqlite3", sqlite, "", "select 1;\n", Trivial, "", repeated("1\n", Trivial)});

    // Both print the same lines; sqlite3 has them in a table, and composes none.
    constexpr int Reports = 20'000;
    const std::string report = ask({KEL_NODE, "getCtStatus", "1"}, "").output;
    const std::string reports = repeated(report, Reports);
    registerReader({"getCtStatus lines/kel-node", node, "", "getCtStatus 1\n", Reports, "", reports});
    registerReader(
        {"getCtStatus lines/sqlite3", sqlite, tableOf(report), "select line from report;\n", Reports, "", reports});
}

} // namespace

void registerPrograms()
{
    std::signal(SIGPIPE, SIG_IGN); // a program that ends early is told of by its status

    registerStart("start/kel-node getCtStatus 1", {KEL_NODE, "getCtStatus", "1"});
    registerStart("start/empty program", {KEL_EMPTY});
    registerStart("load/with the library", {KEL_LOADING});
    registerStart("load/without", {KEL_NOT_LOADING});
    registerReaders();
}

} // namespace bench
