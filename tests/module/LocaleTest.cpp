#include <array>
#include <clocale>
#include <cstdio>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>

#include "module/CtStatusTest.h"
#include "module/Operations.h"
#include "private/util.h"
#include "support/CommaLocale.h"

namespace util = kel::device::kelDebugCmd::util;
using Callback = IRlbspKelApi::KelDebugCmdCallback;

namespace
{

constexpr auto Lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto Highest = std::numeric_limits<std::int32_t>::max();

class LocaleTest : public CtStatusTest
{
protected:
    LocaleTest()
    {
        status().ActualRFInputPower = -1234567;
        status().ErroredBlocks = Lowest;
        status().BackgroundBlocks = Highest;
        capability().NumberOfChannels = 4294967295;
        capability().MinTemp = -1234;
        capability().FrequencyBand = 12345;
        capability().AvailableRSECs = {0, 9, 12345};
        capability().TapsCapable = true;
        auto& xpic = doubles::topApi().manageXpic;
        xpic.RadioChannelID = 4294967295;
        xpic.AverageI = Lowest;
        xpic.XpicEnable = true;
        xpic.SlaveDiffGain = -1234;
        xpic.Xpd = -123456;
        xpic.SlaveCarrierOffset = Highest;
        xpic.SlaveSweepOngoing = true;
        doubles::topApi().hopLengthTimeDspPps.hopLengthTime = 4294967295;
    }

    /// Every text that the module makes of numbers.
    std::vector<std::string> texts()
    {
        std::vector<std::string> all;
        for (const int value : {0, 5, 1234, -7350, 1234567, 12345678, Highest, Lowest})
        {
            all.push_back(util::makeDbString(value));
            all.push_back(util::makeDbmString(value));
            all.push_back(util::makeDecimalValString(value));
            all.push_back(util::makeDecibelString(value, " units"));
        }
        auto& api = doubles::topApi();
        all.push_back(kel_top_api::BaseResponse().printResponse());
        all.push_back(api.calibrateDspPps.printResponse());
        all.push_back(api.manageXpic.printResponse());
        all.push_back(api.radioChannelStatus.printResponse());
        all.push_back(api.radioChannelCapability.printResponse());
        for (const auto& operation : operations<Callback>())
        {
            Output output;
            operation.run(commands(), output);
            all.push_back(output.report);
        }
        for (const auto& message : messages())
        {
            all.push_back(message.text);
        }
        doubles::trace().messages.clear();
        return all;
    }
};

TEST_F(LocaleTest, CommaLocaleShowsInTheCLibrary)
{
    const CommaLocale commas;
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%.1f", 1234567.5);
    EXPECT_STREQ("1234567,5", text.data());
}

TEST_F(LocaleTest, CommaLocaleShowsInAFreshStream)
{
    const CommaLocale commas;
    std::ostringstream stream;
    stream << std::fixed << std::setprecision(1) << 1234567.5 << " " << std::boolalpha << true;
    EXPECT_EQ("1.234.567,5 wahr", stream.str());
}

TEST_F(LocaleTest, ReportsAndNumbersAreTheSameInEveryLocale)
{
    const auto expected = texts();
    const CommaLocale commas;
    EXPECT_EQ(expected, texts());
}

TEST_F(LocaleTest, TraceMessagesAreTheSameInEveryLocale)
{
    failAllServices();
    dpd1->result = static_cast<EDPDResult>(Highest);
    const auto expected = texts();
    const CommaLocale commas;
    EXPECT_EQ(expected, texts());
}

TEST_F(LocaleTest, CommaLocaleIsGoneAfterwards)
{
    {
        const CommaLocale commas;
    }
    EXPECT_EQ(std::locale::classic(), std::locale());
    EXPECT_STREQ("C", std::setlocale(LC_ALL, nullptr));
}

} // namespace
