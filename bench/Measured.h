#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace bench
{

/// Something whose cost is measured, by the clock or by its instructions.
struct Measured
{
    std::string name;                       ///< "operation/way": ways of one operation are compared
    std::function<void()> prepare;          ///< once, before it is run; throws unless it does what it is measured for
    std::function<void(std::uint64_t)> run; ///< so many times
};

/// Keeps the compiler from leaving out what computes the value.
template <typename Value>
void keep(const Value& value)
{
    asm volatile("" : : "g"(&value) : "memory");
}

/// Measures a call that answers something.
template <typename Call>
Measured measured(std::string name, std::function<void()> prepare, Call call)
{
    const auto run = [call](std::uint64_t times) mutable
    {
        for (std::uint64_t time = 0; time < times; ++time)
        {
            keep(call());
        }
    };
    return {std::move(name), std::move(prepare), run};
}

/// The operations: "module"; "bare", the calls of the same services with the same records; "floor", the same
/// text by fmt; "failed", the module while its first service fails and the trace is silent, "failed last" while its
/// last one does.
std::vector<Measured> operations();

/// printResponse() of the records, as "module" and as "floor", and the table of modulations. These are functions of
/// headers: the program has copies of its own, compiled as the library's are.
std::vector<Measured> records();

} // namespace bench
