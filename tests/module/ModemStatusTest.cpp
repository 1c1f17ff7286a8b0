#include <limits>

#include "module/ModuleTest.h"

using doubles::placelessMessage;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr auto Lowest = std::numeric_limits<std::int32_t>::min();
constexpr auto Highest = std::numeric_limits<std::int32_t>::max();
constexpr auto NotRetrieved = "Data could not be retrieved!";

class ModemStatusTest : public ModuleTest
{
protected:
    ModemStatusTest()
    {
        modemStatus.filled = {7, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0xFFFFFFFF}};
        modemStatus.text = "modem: in lock\nmargin: 12\n";
    }

    static auto theMessage(const std::string& text)
    {
        return ElementsAre(placelessMessage(doubles::KelDebugCmdChannel, text));
    }
};

TEST_F(ModemStatusTest, TheInterfaceRendersTheRecordThatItFilled)
{
    EXPECT_EQ(0, commands().getBcmModemStatus(2, report));
    EXPECT_THAT(calls(), ElementsAre("ITiGetDspModemStatus.getDspModemStatus(2, 2 0 0 0 0 0 0 0 0 0 0 0)",
                                     "ITiGetDspModemStatus.toString(7 1 2 3 4 5 6 7 8 9 10 4294967295)"));
    EXPECT_EQ("modem: in lock\nmargin: 12\n", report);
}

TEST_F(ModemStatusTest, EveryQueryStartsFromAFreshRecord)
{
    EXPECT_EQ(0, commands().getBcmModemStatus(1, report));
    doubles::calls().clear();
    EXPECT_EQ(0, commands().getBcmModemStatus(1, report));
    EXPECT_EQ("ITiGetDspModemStatus.getDspModemStatus(1, 2 0 0 0 0 0 0 0 0 0 0 0)", calls().at(0));
}

TEST_F(ModemStatusTest, EmptyRenderingIsAnEmptyReport)
{
    modemStatus.text = "";
    EXPECT_EQ(0, commands().getBcmModemStatus(1, report));
    EXPECT_EQ("", report);
}

TEST_F(ModemStatusTest, CodesBelow0x8000AreSuccessNegativeOnesToo)
{
    for (const std::int32_t code : {0, 1, 0x7FFF, -1, -0x8000, Lowest})
    {
        report = "what was there before";
        modemStatus.result = {code, "a hint"};
        EXPECT_EQ(0, commands().getBcmModemStatus(1, report)) << "code " << code;
        EXPECT_EQ("modem: in lock\nmargin: 12\n", report) << "code " << code;
    }
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ("", doubles::trace().discarded);
}

TEST_F(ModemStatusTest, CodesFrom0x8000OnAreFailuresAndNothingIsRendered)
{
    for (const std::int32_t code : {0x8000, 0x8001, Highest})
    {
        doubles::calls().clear();
        doubles::trace().reset();
        report = "what was there before";
        modemStatus.result = {code, "modem is down"};
        EXPECT_EQ(1, commands().getBcmModemStatus(1, report)) << "code " << code;
        EXPECT_EQ(NotRetrieved, report) << "code " << code;
        EXPECT_THAT(calls(), ElementsAre("ITiGetDspModemStatus.getDspModemStatus(1, 2 0 0 0 0 0 0 0 0 0 0 0)"));
        EXPECT_THAT(messages(), theMessage("getBcmModemStatus failed: modem is down\n"));
    }
}

TEST_F(ModemStatusTest, EmptyErrorTextLeavesTheTrailingBlank)
{
    modemStatus.result = {0x8000, ""};
    EXPECT_EQ(1, commands().getBcmModemStatus(1, report));
    EXPECT_THAT(messages(), theMessage("getBcmModemStatus failed: \n"));
}

TEST_F(ModemStatusTest, SilentTraceDropsTheLineAndKeepsResultAndReport)
{
    silenceTrace();
    modemStatus.result = {0x8000, "modem is down"};
    EXPECT_EQ(1, commands().getBcmModemStatus(1, report));
    EXPECT_EQ(NotRetrieved, report);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ("getBcmModemStatus failed: modem is down\n", doubles::trace().discarded);
}

} // namespace
