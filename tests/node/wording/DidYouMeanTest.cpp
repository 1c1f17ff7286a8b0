#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/wording/InputError.h"

using node::wording::didYouMean;

namespace
{

using Candidates = std::vector<std::string>;

TEST(DidYouMeanTest, NamesTheCandidateInParentheses)
{
    EXPECT_EQ(" (did you mean getCtStatus?)", didYouMean("getCtStatu", {"getCtStatus"}));
}

TEST(DidYouMeanTest, WithoutCandidatesThereIsNothingToName)
{
    EXPECT_EQ("", didYouMean("word", {}));
    EXPECT_EQ("", didYouMean("", {}));
}

TEST(DidYouMeanTest, ALetterMoreOrLessOrOtherIsOneStep)
{
    for (const std::string word :
         {"channel", "xchannel", "channelx", "chanxnel", "hannel", "channe", "chanel", "xhannel", "channex", "chaxnel"})
    {
        EXPECT_EQ(" (did you mean channel?)", didYouMean(word, {"channel"})) << word;
    }
}

TEST(DidYouMeanTest, CaseDoesNotCount)
{
    EXPECT_EQ(" (did you mean getCtStatus?)", didYouMean("GETCTSTATUS", {"getCtStatus"}));
    EXPECT_EQ(" (did you mean AAZZ?)", didYouMean("aazz", {"AAZZ"}));
    EXPECT_EQ(" (did you mean aazz?)", didYouMean("AAZZ", {"aazz"}));
    EXPECT_EQ("", didYouMean("@[", {"`{"}));
}

/// One step is always near; from six letters on, one step for each three of the word that was typed.
TEST(DidYouMeanTest, AThirdOfTheLettersMayDiffer)
{
    struct Row
    {
        std::string word;
        std::string candidate;
        bool near;
    };
    for (const Row& row :
         {Row{"", "a", true}, Row{"", "ab", false}, Row{"a", "", true}, Row{"a", "b", true}, Row{"ab", "cd", false},
          Row{"ab", "abc", true}, Row{"ab", "Xabc", false}, Row{"abcde", "abcdX", true}, Row{"abcde", "abcXX", false},
          Row{"abcdef", "abcdXX", true}, Row{"abcdef", "abcXXX", false}, Row{"abcdefgh", "abcdefXX", true},
          Row{"abcdefgh", "abcdeXXX", false}, Row{"abcdefghi", "abcdefXXX", true}, Row{"abcdefghi", "abcdeXXXX", false},
          Row{"abcdef", "XXabcdef", true}, Row{"abcdef", "XXXabcdef", false}})
    {
        EXPECT_EQ(row.near ? " (did you mean " + row.candidate + "?)" : "", didYouMean(row.word, {row.candidate}))
            << row.word << " and " << row.candidate;
    }
}

TEST(DidYouMeanTest, TheClosestCandidateWins)
{
    EXPECT_EQ(" (did you mean abcdefX?)", didYouMean("abcdef", {"abcdXX", "abcdefX", "abcXef7"}));
    EXPECT_EQ(" (did you mean abcdef?)", didYouMean("abcdef", {"abcdeX", "abcdef", "abcdXf"}));
}

TEST(DidYouMeanTest, TheOnlyCandidateThatBeginsSoWins)
{
    EXPECT_EQ(" (did you mean getCtStatus?)", didYouMean("getCT", {"getX", "getCtStatus", "getC"}));
    EXPECT_EQ(" (did you mean rain-front?)", didYouMean("r", {"s", "rain-front"}));
    EXPECT_EQ("", didYouMean("sta", {"starting", "stay-on-and-on"}));
    EXPECT_EQ("", didYouMean("", {"starting"}));
}

TEST(DidYouMeanTest, OfCandidatesThatAreAsCloseTheFirstWins)
{
    EXPECT_EQ(" (did you mean start?)", didYouMean("stXrt", {"start", "sturt"}));
    EXPECT_EQ(" (did you mean sturt?)", didYouMean("stXrt", {"sturt", "start"}));
}

/// Levenshtein's distance as it is defined.
std::size_t distance(std::string_view a, std::string_view b)
{
    if (a.empty() || b.empty())
    {
        return std::max(a.size(), b.size());
    }
    const std::size_t same = a[0] == b[0] ? 0 : 1;
    return std::min(
        {distance(a.substr(1), b) + 1, distance(a, b.substr(1)) + 1, distance(a.substr(1), b.substr(1)) + same});
}

class RandomDidYouMeanTest : public ::testing::TestWithParam<std::uint64_t>
{
protected:
    std::string randomWord()
    {
        std::string word(static_cast<std::size_t>(random() % 7), ' ');
        for (char& letter : word)
        {
            letter = "abc"[random() % 3];
        }
        return word;
    }

    std::mt19937_64 random{GetParam()};
};

TEST_P(RandomDidYouMeanTest, TheFirstOfTheClosestWithinAThirdIsNamed)
{
    constexpr int Rounds = 100;
    for (int round = 0; round < Rounds; ++round)
    {
        const std::string word = randomWord();
        const Candidates candidates = {randomWord(), randomWord(), randomWord()};
        SCOPED_TRACE(
            fmt::format("seed {}, round {}: {} among {}", GetParam(), round, word, fmt::join(candidates, ", ")));
        const auto closest =
            std::min_element(candidates.begin(), candidates.end(),
                             [&](const auto& a, const auto& b) { return distance(word, a) < distance(word, b); });
        const auto begins = [&](const std::string& candidate) { return !word.empty() && candidate.starts_with(word); };
        if (std::count_if(candidates.begin(), candidates.end(), begins) == 1)
        {
            continue;
        }
        const bool near = distance(word, *closest) <= std::max<std::size_t>(1, word.size() / 3);
        EXPECT_EQ(near ? " (did you mean " + *closest + "?)" : "", didYouMean(word, candidates));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomDidYouMeanTest, ::testing::Values(1, 2, 3));

} // namespace
