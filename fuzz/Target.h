#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

/// What the fuzzer calls with each input; a target defines it. It throws what it finds, and the fuzzer, which catches
/// nothing, keeps the input; the replay tells it as the failure of a test.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz
{

/// Something is not as it must be.
class Finding : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// @param what  must hold
/// @throws Finding when it does not
inline void expect(bool holds, const char* what)
{
    if (!holds)
    {
        throw Finding(what);
    }
}

inline void expect(bool holds, const char* what, const std::string& found)
{
    if (!holds)
    {
        throw Finding(std::string(what) + ", found:\n" + found);
    }
}

inline void expectSame(const char* what, const std::string& expected, const std::string& found)
{
    if (expected != found)
    {
        throw Finding(std::string(what) + ", expected:\n" + expected + "\nfound:\n" + found);
    }
}

inline void expectSame(const char* what, long long expected, long long found)
{
    if (expected != found)
    {
        expectSame(what, std::to_string(expected), std::to_string(found));
    }
}

} // namespace fuzz
