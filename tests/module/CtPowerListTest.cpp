#include "module/CtStatusTest.h"

namespace
{

class CtPowerListTest : public CtStatusTest
{
protected:
    /// The lines of the list of maximum powers, with the line that heads it and the empty line behind it.
    std::string powerListOf(const std::vector<kel_top_api::CriGetRadioChannelCapability::MaxRFOutputPower>& list)
    {
        capability().AvailableMaxRFOutputPower = list;
        const std::string text = reportOf(1);
        const auto start = text.find("Available Max Output Pwr:");
        return text.substr(start, text.find("Radio Channel Id:") - start);
    }
};

TEST_F(CtPowerListTest, PowersStandInTheOrderOfTheList)
{
    EXPECT_EQ("Available Max Output Pwr: \n"
              "            BPSK          -1.5 dBm\n"
              "            4QAM          20 dBm\n"
              "            BPSK          0 dBm\n"
              "\n",
              powerListOf({{21, -150}, {31, 2000}, {21, 0}}));
}

TEST_F(CtPowerListTest, PowersWithoutAKnownModulationAreUndefined)
{
    EXPECT_EQ("Available Max Output Pwr: \n"
              "            UNDEFINED     1 dBm\n"
              "            UNDEFINED     2 dBm\n"
              "            UNDEFINED     3 dBm\n"
              "            UNDEFINED     4 dBm\n"
              "            UNDEFINED     5 dBm\n"
              "\n",
              powerListOf({{143, 100}, {13, 200}, {144, 300}, {0, 400}, {4294967295, 500}}));
}

TEST_F(CtPowerListTest, LongNamesAreWholeAndLeaveNoBlankBeforeThePower)
{
    EXPECT_EQ("Available Max Output Pwr: \n"
              "            4096QAM_LIGHT 7 dBm\n"
              "            1024QAM_STRONG7 dBm\n"
              "            16384QAM_LIGHT7 dBm\n"
              "            16384QAM_STRONG-7 dBm\n"
              "            HALF_BPSK_STRONG7 dBm\n"
              "            HALF_BPSK     7 dBm\n"
              "\n",
              powerListOf({{122, 700}, {100, 700}, {142, 700}, {140, -700}, {10, 700}, {11, 700}}));
}

TEST_F(CtPowerListTest, EmptyListLeavesItsHeadBeforeTheEmptyLine)
{
    EXPECT_EQ("Available Max Output Pwr: \n\n", powerListOf({}));
}

} // namespace
