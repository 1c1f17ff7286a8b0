#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "node/scenario/ScenarioText.h"
#include "node/scenario/Value.h"

using node::scenario::typedValue;

namespace
{

constexpr auto None = std::nullopt;

TEST(TypedValueTest, AWordIsEverythingThatItCanBeTakenFor)
{
    const auto whole = typedValue("here", "-0x10");
    EXPECT_EQ(-16, whole.whole);
    EXPECT_EQ(None, whole.number);
    EXPECT_EQ(None, whole.flag);
    EXPECT_EQ("-0x10", whole.text);

    const auto number = typedValue("here", "-16");
    EXPECT_EQ(-16, number.whole);
    EXPECT_EQ(-16.0, number.number);

    const auto real = typedValue("here", "2.5");
    EXPECT_EQ(None, real.whole);
    EXPECT_EQ(2.5, real.number);
    EXPECT_EQ("2.5", real.text);
}

TEST(TypedValueTest, TrueAndFalseAreFlags)
{
    EXPECT_EQ(true, typedValue("here", "true").flag);
    EXPECT_EQ(false, typedValue("here", "false").flag);
    EXPECT_EQ("true", typedValue("here", "true").text);
    for (const std::string word : {"", "True", "FALSE", "yes", "1", "0", "true ", "tru"})
    {
        EXPECT_EQ(None, typedValue("here", word).flag) << '"' << word << '"';
    }
}

TEST(TypedValueTest, IsRefusedWithItsPlaceAndTheWordInQuotes)
{
    EXPECT_EQ("there: found \"a\\tb\", expected a pear",
              scenario_text::refusalOf([] { typedValue("there", "a\tb").refuse("a pear"); }));
}

} // namespace
