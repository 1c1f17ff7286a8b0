#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

namespace bench
{

inline double least(const std::vector<double>& times)
{
    return *std::min_element(times.begin(), times.end());
}

/// Registers a benchmark that also tells "least", its fastest repetition: whatever else the machine does makes some of
/// them slower, and none faster.
template <typename Function>
benchmark::internal::Benchmark* registerTimed(const std::string& name, Function function)
{
    return benchmark::RegisterBenchmark(name.c_str(), std::move(function))->ComputeStatistics("least", least);
}

} // namespace bench
