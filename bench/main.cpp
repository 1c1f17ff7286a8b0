// The cost of the module, of the node and of what they are compared with, side by side in one run.
// kel-bench takes the options of Google Benchmark. Under callgrind it counts instructions instead, and leaves the
// programs out: each of the measured things has a dump of its own, named "NAME xRUNS".
#include <exception>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>
#include <valgrind/callgrind.h>

#include "bench/Allocations.h"
#include "bench/Measured.h"
#include "bench/Programs.h"
#include "bench/Timed.h"

namespace
{

using bench::Measured;

std::vector<Measured> everything()
{
    std::vector<Measured> list = bench::operations();
    for (Measured& record : bench::records())
    {
        list.push_back(std::move(record));
    }
    return list;
}

void registerMeasured(const Measured& measured)
{
    const auto time = [measured](benchmark::State& state)
    {
        constexpr std::int64_t Batch = 16;
        measured.prepare();
        measured.run(1); // what is kept from one command to the next, as the caller's report, is there
        const bench::Allocations allocations = bench::allocationsOf([&measured] { measured.run(1); });
        while (state.KeepRunningBatch(Batch))
        {
            measured.run(Batch);
        }
        state.counters["allocations"] = static_cast<double>(allocations.number);
        state.counters["bytes"] = static_cast<double>(allocations.bytes);
    };
    bench::registerTimed(measured.name, time);
}

void countInstructions(const std::vector<Measured>& list)
{
    constexpr std::uint64_t Runs = 100;
    for (const Measured& measured : list)
    {
        const std::string dump = measured.name + " x" + std::to_string(Runs); // outlives the macro's statements
        measured.prepare();
        measured.run(Runs); // names are bound, memory is warm
        CALLGRIND_ZERO_STATS;
        measured.run(Runs);
        CALLGRIND_DUMP_STATS_AT(dump.c_str());
    }
}

int measure(int count, char** arguments)
{
    if (RUNNING_ON_VALGRIND != 0)
    {
        countInstructions(everything());
        return 0;
    }
    for (const Measured& measured : everything())
    {
        registerMeasured(measured);
    }
    bench::registerPrograms();
    benchmark::Initialize(&count, arguments);
    if (benchmark::ReportUnrecognizedArguments(count, arguments))
    {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

} // namespace

int main(int count, char** arguments)
{
    try
    {
        return measure(count, arguments);
    }
    catch (const std::exception& exception)
    {
        std::cerr << "kel-bench: " << exception.what() << '\n';
        return 1;
    }
}
