#include "bench/Programs.h"

#include <csignal>
#include <functional>
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

/// A program, the lines that it reads, and what it has to print.
struct Reading
{
    std::vector<std::string> words;
    std::string input;
    std::string output;
};

/// @param make  is called before the first time that is measured, and not where nothing is
void registerReader(const std::string& name, int lines, const std::function<Reading()>& make)
{
    // Run many times, once for each repetition.
    const auto read = [name, lines, make, reading = Reading(), memory_KiB = 0L](benchmark::State& state) mutable
    {
        if (reading.words.empty())
        {
            reading = make();
            const Done done = ask(reading.words, reading.input);
            if (done.output != reading.output)
            {
                throw std::runtime_error(name + ": found another output than expected");
            }
            memory_KiB = done.memory_KiB;
        }
        state.counters["memory_KiB"] = static_cast<double>(memory_KiB);
        for (auto _ : state)
        {
            run(reading.words, reading.input);
        }
        state.counters["lines"] = lines;
    };
    registerTimed(name, read)->UseRealTime()->Unit(benchmark::kMillisecond);
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

/// What the node answers to "getCtStatus 1".
std::string ctReport()
{
    return ask({KEL_NODE, "getCtStatus", "1"}, "").output;
}

void registerReaders()
{
    const std::vector<std::string> node = {KEL_NODE};
    const std::vector<std::string> sqlite = {"/usr/bin/sqlite3", "-batch", "-init", "/dev/null", ":memory:"};

    // The node's shortest command, which prints nothing: a fault that is still to come counts it.
    constexpr int Trivial = 100'000;
    registerReader("startDpd lines/kel-node", Trivial,
                   [node]
                   {
                       const std::string fault = "IDpdControllerSplit.start code=32768 from_call=1000000";
                       return Reading{node,
                                      "addFault " + fault + "\n" + repeated("startDpd 1\n", Trivial) + "listFaults\n",
                                      fault + ": seen " + std::to_string(Trivial) + ", hit 0\n"};
                   });
    registerReader("startDpd lines/sqlite3", Trivial,
                   [sqlite] {
                       return Reading{sqlite, repeated("select 1;\n", Trivial), repeated("1\n", Trivial)};
                   });

    // Both print the same lines; sqlite3 has them in a table, and composes none.
    constexpr int Reports = 20'000;
    registerReader("getCtStatus lines/kel-node", Reports,
                   [node] {
                       return Reading{node, repeated("getCtStatus 1\n", Reports), repeated(ctReport(), Reports)};
                   });
    registerReader("getCtStatus lines/sqlite3", Reports,
                   [sqlite]
                   {
                       const std::string report = ctReport();
                       return Reading{sqlite, tableOf(report) + repeated("select line from report;\n", Reports),
                                      repeated(report, Reports)};
                   });
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
