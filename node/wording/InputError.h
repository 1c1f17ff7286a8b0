#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

/// How the node words what it does not accept.
namespace node::wording
{

/// The word in quotation marks, on one line and visible whatever it holds.
std::string quoted(const std::string& word);

/// "a whole number from 0 to 255"
std::string wholeRange(std::int64_t lowest, std::int64_t highest);

/// "a number from 0.1 to 100"
std::string numberRange(double lowest, double highest);

/// What stands where a file or a folder was to be read or written: "no such file".
std::string foundInsteadOf(const std::string& what, const std::error_code& reason);

/// What is said of a file that was opened for writing and takes no more: "\"FILE\" cannot be written any more".
std::string takesNoMore(const std::string& file);

/// " (did you mean ...?)" with the only candidate that begins with the word, or the one that is spelt most alike; ""
/// when none is close. Case does not count.
std::string didYouMean(const std::string& word, const std::vector<std::string>& candidates);

/// Input that cannot be used. Nothing was done with it.
class InputError : public std::runtime_error
{
public:
    /// "PLACE: found FOUND, expected EXPECTED"
    /// @param place     where in the input
    /// @param found     what stands there
    /// @param expected  what should
    InputError(const std::string& place, const std::string& found, const std::string& expected);
};

} // namespace node::wording
