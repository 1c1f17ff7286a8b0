#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "node/scenario/KeyList.h"
#include "node/scenario/ScenarioText.h"
#include "support/Portrait.h"

using key_list::Row;
using key_list::Takes;
using scenario_text::parse;
using scenario_text::refusal;
using ::testing::Contains;
using ::testing::ContainsRegex;
using ::testing::ElementsAreArray;

namespace
{

constexpr std::uint64_t Seeds[] = {1, 2, 20240229};
constexpr int Rounds = 100;

/// Tables that hold something of everything.
const std::vector<std::string>& tables()
{
    static const std::vector<std::string> all = {
        "[node]\nradio_channels_told = 1\nruns_with_failed_modules = true\nseed = 7\n",
        "[broker]\nIDpdControllerSplit_2 = \"other type\"\n",
        "[hop]\ndistance_km = 12.5\nfrequency_plan = \"23 GHz\"\nfrequency_number = 40\n"
        "channel_1_polarisation = \"horizontal\"\n",
        "[weather]\nscintillation_deviation_dB = 0.5\n",
        "[[weather.rain]]\nat_s = 10\n[[weather.rain]]\nat_s = 20\nrate_mm_per_h = 30\n",
        "[[weather.fade]]\ndepth_dB = 3\n",
        "[channel.1]\nlowest_modulation = \"16QAM\"\nhighest_modulation = \"64QAM_LIGHT\"\ndpd_running = false\n",
        "[channel.2]\ndpd_coefficients = \"000102030405060708090a0b0c0d0e0f10111213\"\npps_source_parameter = -4\n",
        "[[fault]]\ncall = \"tiManageXpic\"\nchannel = 2\ncode = -1\ntext = \"né\"\n[[fault]]\n"
        "call = \"CModuleManager.RegisterModule\"\nthrows = true\n",
    };
    return all;
}

std::size_t below(std::mt19937_64& random, std::size_t bound)
{
    return static_cast<std::size_t>(random() % bound);
}

template <typename Items>
void shuffle(Items& items, std::mt19937_64& random)
{
    for (std::size_t left = items.size(); left > 1; --left)
    {
        std::swap(items[left - 1], items[below(random, left)]);
    }
}

class RandomScenarioTest : public ::testing::TestWithParam<std::uint64_t>
{
protected:
    std::mt19937_64 random{GetParam()};
};

/// Between the bounds, with all the digits that a number can have.
TEST_P(RandomScenarioTest, NumbersKeepEveryDigit)
{
    const std::vector<Row> rows = taking(Takes::Number);
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(fmt::format("seed {}, round {}", GetParam(), round));
        const Row& row = rows[below(random, rows.size())];
        if (row.lowest.empty())
        {
            continue;
        }
        const double lowest = std::stod(row.lowest);
        const double share = static_cast<double>(random() >> 11) / 9007199254740992.0;
        const std::string value = fmt::format("{}", lowest + share * (std::stod(row.highest) - lowest));
        const std::string line = row.name + " = " + value;
        EXPECT_THAT(portrait::of(parse(header(row) + line + "\n")), Contains(path(row) + " = " + value));
    }
}

TEST_P(RandomScenarioTest, TheOrderOfTablesMeansNothing)
{
    std::vector<std::string> texts = tables();
    const auto lines = portrait::of(parse(fmt::format("{}", fmt::join(texts, ""))));
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(fmt::format("seed {}, round {}", GetParam(), round));
        shuffle(texts, random);
        EXPECT_THAT(portrait::of(parse(fmt::format("{}", fmt::join(texts, "\n")))), ElementsAreArray(lines));
    }
}

/// A file may hold anything: it is read or refused with a place, and nothing else comes of it.
TEST_P(RandomScenarioTest, ADamagedFileIsReadOrRefusedWithItsPlace)
{
    const std::string whole = fmt::format("{}", fmt::join(tables(), ""));
    const std::string pieces[] = {"[", "]", "\"", "=", "\n", ".", "{", "}", ",", "#", "-", "9", "nan", "true", "\xff"};
    for (int round = 0; round < Rounds; ++round)
    {
        std::string text = whole;
        for (std::size_t damages = 1 + below(random, 3); damages > 0; --damages)
        {
            const std::size_t place = below(random, text.size());
            const std::size_t length = below(random, 4);
            text.replace(place, length, pieces[below(random, std::size(pieces))]);
        }
        SCOPED_TRACE(fmt::format("seed {}, round {}\n{}", GetParam(), round, text));
        const std::string error = refusal(text);
        if (!error.empty())
        {
            EXPECT_THAT(error, ContainsRegex("^link.toml:[1-9][0-9]*:[1-9][0-9]*: .*found .*, expected "));
            EXPECT_EQ(std::string::npos, error.find('\n'));
        }
    }
}

/// Wherever one value is spoilt, its own place is told.
TEST_P(RandomScenarioTest, ASpoiltValueIsNamedWhereItStands)
{
    for (int round = 0; round < Rounds; ++round)
    {
        std::vector<std::string> texts = tables();
        shuffle(texts, random);
        std::string before;
        const std::size_t spoilt = below(random, texts.size());
        for (std::size_t i = 0; i < spoilt; ++i)
        {
            before += texts[i];
        }
        const std::size_t equals = texts[spoilt].find(" = ") + 3;
        texts[spoilt].replace(equals, texts[spoilt].find('\n', equals) - equals, "2000-01-01");
        const auto line = std::count(before.begin(), before.end(), '\n') + 2;
        const std::size_t column = equals - texts[spoilt].find('\n');

        SCOPED_TRACE(fmt::format("seed {}, round {}", GetParam(), round));
        EXPECT_THAT(refusal(fmt::format("{}", fmt::join(texts, ""))),
                    ContainsRegex(fmt::format("^link.toml:{}:{}: .*: found a date or time, expected ", line, column)));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomScenarioTest, ::testing::ValuesIn(Seeds));

} // namespace
