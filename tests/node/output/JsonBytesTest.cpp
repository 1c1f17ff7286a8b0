#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "node/output/Json.h"
#include "node/wording/Number.h"

using nlohmann::ordered_json;
using node::output::toJson;
using node::output::toLine;

namespace
{

class RandomBytesTest : public ::testing::TestWithParam<std::uint64_t>
{
protected:
    static constexpr int Rounds = 300;

    /// Some bytes: any, or such as UTF-8 is made of.
    std::string bytes()
    {
        const std::vector<std::string> pieces = {"a", "\u00e4", "\u20ac", "\U0001f4e1", "\ufffd", std::string(1, '\0')};
        std::string text;
        for (std::uint64_t left = random() % 8; left > 0; --left)
        {
            text += random() % 3 == 0 ? std::string(1, static_cast<char>(random()))
                                      : pieces[static_cast<std::size_t>(random() % pieces.size())];
        }
        return text;
    }

    std::mt19937_64 random{GetParam()};
};

/// The text that a member was made of.
std::string textOf(const ordered_json& text, const ordered_json& digits)
{
    if (!digits.is_string())
    {
        return text;
    }
    const std::string hex = digits;
    const auto bytes = node::wording::parseBytes(hex, hex.size() / 2);
    return {bytes->begin(), bytes->end()};
}

std::string readBack(const ordered_json& object, const std::string& name)
{
    return textOf(object.at(name), object.value(name + "_hex", ordered_json()));
}

TEST_P(RandomBytesTest, NothingIsLost)
{
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(fmt::format("seed {}, round {}", GetParam(), round));
        node::output::Answer answer;
        answer.command = bytes();
        answer.arguments = {bytes(), bytes(), bytes()};
        answer.outcome = {0, bytes(), {{"x" + bytes(), bytes(), bytes(), "x" + bytes()}}};
        answer.error = "x" + bytes();

        const auto document = ordered_json::parse(toLine(toJson(answer)));
        EXPECT_EQ(answer.command, readBack(document, "command"));
        EXPECT_EQ(answer.outcome->output, readBack(document, "report"));
        EXPECT_EQ(answer.error, readBack(document, "error"));
        const auto digits = document.value("arguments_hex", ordered_json(3, nullptr));
        ASSERT_EQ(3U, digits.size());
        for (std::size_t i = 0; i < 3; ++i)
        {
            EXPECT_EQ(answer.arguments[i], textOf(document["arguments"].at(i), digits[i]));
        }
        const ordered_json& field = document["fields"].at(0);
        const node::report::Field& made = answer.outcome->fields[0];
        EXPECT_EQ(made.under, readBack(field, "under"));
        EXPECT_EQ(made.label, readBack(field, "label"));
        EXPECT_EQ(std::get<std::string>(made.value), readBack(field, "value"));
        EXPECT_EQ(made.unit, readBack(field, "unit"));
    }
}

TEST_P(RandomBytesTest, NothingIsLostOfAMessage)
{
    for (int round = 0; round < Rounds; ++round)
    {
        SCOPED_TRACE(fmt::format("seed {}, round {}", GetParam(), round));
        const node::trace::Message message{bytes(), 1, "x" + bytes(), 2, "x" + bytes(), bytes()};
        const auto document = ordered_json::parse(toLine(toJson(node::output::TimedMessage{{}, message})));
        EXPECT_EQ(message.channel, readBack(document, "channel"));
        EXPECT_EQ(message.file, readBack(document, "file"));
        EXPECT_EQ(message.function, readBack(document, "function"));
        EXPECT_EQ(message.text, readBack(document, "text"));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomBytesTest, ::testing::Values(1, 2, 3));

} // namespace
