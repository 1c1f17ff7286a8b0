#include "node/wording/InputError.h"

#include <algorithm>
#include <numeric>
#include <string_view>

#include <fmt/format.h>

#include "node/wording/Letter.h"

namespace node::wording
{

namespace
{

/// Levenshtein's distance: how many letters must be put in, taken out or changed to make one word of the other.
std::size_t distance(std::string_view from, std::string_view to)
{
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i)
    {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < to.size(); ++j)
        {
            const std::size_t changed = diagonal + (lower(from[i]) == lower(to[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({row[j + 1] + 1, row[j] + 1, changed});
        }
    }
    return row.back();
}

bool beginsWith(std::string_view word, std::string_view beginning)
{
    return word.size() >= beginning.size() && std::equal(beginning.begin(), beginning.end(), word.begin(),
                                                         [](char a, char b) { return lower(a) == lower(b); });
}

} // namespace

std::string quoted(const std::string& word)
{
    return fmt::format("{:?}", word);
}

std::string wholeRange(std::int64_t lowest, std::int64_t highest)
{
    return fmt::format("a whole number from {} to {}", lowest, highest);
}

std::string numberRange(double lowest, double highest)
{
    return fmt::format("a number from {} to {}", lowest, highest);
}

std::string foundInsteadOf(const std::string& what, const std::error_code& reason)
{
    if (reason == std::errc::no_such_file_or_directory || reason == std::errc::not_a_directory)
    {
        return "no such " + what;
    }
    if (reason == std::errc::is_a_directory)
    {
        return "a folder";
    }
    if (reason == std::errc::permission_denied)
    {
        return "no permission";
    }
    return "it unusable (" + reason.message() + ")";
}

std::string takesNoMore(const std::string& file)
{
    return quoted(file) + " cannot be written any more";
}

std::string didYouMean(const std::string& word, const std::vector<std::string>& candidates)
{
    const auto begins = [&](const std::string& candidate) { return !word.empty() && beginsWith(candidate, word); };
    const auto beginning = std::find_if(candidates.begin(), candidates.end(), begins);
    if (beginning != candidates.end() && std::find_if(beginning + 1, candidates.end(), begins) == candidates.end())
    {
        return fmt::format(" (did you mean {}?)", *beginning);
    }
    std::size_t closest = std::max<std::size_t>(1, word.size() / 3) + 1;
    std::string suggestion;
    for (const std::string& candidate : candidates)
    {
        // The lengths alone keep them apart by so many letters, and are known at once, however long the word is.
        const std::size_t atLeast = std::max(word.size(), candidate.size()) - std::min(word.size(), candidate.size());
        if (atLeast >= closest)
        {
            continue;
        }
        const std::size_t away = distance(word, candidate);
        if (away < closest)
        {
            closest = away;
            suggestion = fmt::format(" (did you mean {}?)", candidate);
        }
    }
    return suggestion;
}

InputError::InputError(const std::string& place, const std::string& found, const std::string& expected)
    : std::runtime_error(fmt::format("{}: found {}, expected {}", place, found, expected))
{
}

} // namespace node::wording
