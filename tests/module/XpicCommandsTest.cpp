#include "module/ModuleTest.h"

using doubles::answer;
using doubles::topApi;
using kel_top_api::TiManageXpic;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

using Bytes = std::vector<unsigned char>;
using XpicCommandsTest = ModuleTest;

TEST_F(XpicCommandsTest, UnmutingSendsFalse)
{
    EXPECT_EQ(0, commands().setXpicSlaveMute(1, 0));
    EXPECT_THAT(calls(), ElementsAre("tiManageXpic(RadioChannelID=1, SlaveMute=0)"));
}

TEST_F(XpicCommandsTest, EveryOtherMuteByteSendsTrue)
{
    for (int mute = 1; mute <= 255; ++mute)
    {
        doubles::calls().clear();
        EXPECT_EQ(0, commands().setXpicSlaveMute(2, static_cast<unsigned char>(mute)));
        EXPECT_THAT(calls(), ElementsAre("tiManageXpic(RadioChannelID=2, SlaveMute=1)")) << "mute " << mute;
    }
}

TEST_F(XpicCommandsTest, ValidPreambleIsSentUnchanged)
{
    for (const unsigned char preamble : Bytes{0, 1, 2, 3})
    {
        doubles::calls().clear();
        EXPECT_EQ(0, commands().setXpicPreamble(1, preamble));
        EXPECT_THAT(calls(), ElementsAre("tiManageXpic(RadioChannelID=1, Preamble=" + std::to_string(preamble) + ")"));
    }
}

TEST_F(XpicCommandsTest, EveryOtherPreambleIsSentAsOutOfRangeForTheApiToAnswer)
{
    for (int preamble = 4; preamble <= 255; ++preamble)
    {
        doubles::calls().clear();
        EXPECT_EQ(0, commands().setXpicPreamble(2, static_cast<unsigned char>(preamble)));
        EXPECT_THAT(calls(), ElementsAre("tiManageXpic(RadioChannelID=2, Preamble=4)")) << "preamble " << preamble;
    }
}

TEST_F(XpicCommandsTest, ValidAcquireModeAndOptionAreSentUnchanged)
{
    for (const unsigned char mode : Bytes{0, 1, 2})
    {
        for (const unsigned char option : Bytes{0, 1, 2, 3})
        {
            doubles::calls().clear();
            EXPECT_EQ(0, commands().xpicAcquireStart(1, mode, option));
            EXPECT_THAT(calls(), ElementsAre("tiManageXpic(RadioChannelID=1, AcquireStart=1, AcquireMode=" +
                                             std::to_string(mode) + ", AcquireOption=" + std::to_string(option) + ")"));
        }
    }
}

TEST_F(XpicCommandsTest, EveryOtherAcquireModeIsSentAsOutOfRangeWithItsOptionKept)
{
    for (int mode = 3; mode <= 255; ++mode)
    {
        doubles::calls().clear();
        EXPECT_EQ(0, commands().xpicAcquireStart(1, static_cast<unsigned char>(mode), 0));
        EXPECT_THAT(calls(),
                    ElementsAre("tiManageXpic(RadioChannelID=1, AcquireStart=1, AcquireMode=3, AcquireOption=0)"))
            << "mode " << mode;
    }
}

TEST_F(XpicCommandsTest, EveryOtherAcquireOptionIsSentAsOutOfRangeWithItsModeKept)
{
    for (int option = 4; option <= 255; ++option)
    {
        doubles::calls().clear();
        EXPECT_EQ(0, commands().xpicAcquireStart(2, 0, static_cast<unsigned char>(option)));
        EXPECT_THAT(calls(),
                    ElementsAre("tiManageXpic(RadioChannelID=2, AcquireStart=1, AcquireMode=0, AcquireOption=4)"))
            << "option " << option;
    }
}

TEST_F(XpicCommandsTest, AcquireModeAndOptionCanBothBeOutOfRange)
{
    EXPECT_EQ(0, commands().xpicAcquireStart(1, 3, 4));
    EXPECT_THAT(calls(), ElementsAre("tiManageXpic(RadioChannelID=1, AcquireStart=1, AcquireMode=3, AcquireOption=4)"));
}

TEST_F(XpicCommandsTest, ReadingThePreambleAsksForItAlone)
{
    unsigned char preamble = 99;
    EXPECT_EQ(0, commands().getXpicPreamble(2, &preamble));
    EXPECT_THAT(calls(), ElementsAre("tiManageXpic(RadioChannelID=2, GetPreamble=1)"));
}

TEST_F(XpicCommandsTest, ValidPreambleIsReadUnchanged)
{
    for (const unsigned char given : Bytes{0, 1, 2, 3})
    {
        topApi().manageXpic.XpicPreamble = static_cast<TiManageXpic::PreambleType>(given);
        unsigned char preamble = 99;
        EXPECT_EQ(0, commands().getXpicPreamble(1, &preamble));
        EXPECT_EQ(given, preamble);
    }
}

TEST_F(XpicCommandsTest, EveryOtherPreambleIsReadAs255)
{
    // 256 and 258 would look valid to a reader of their lowest byte, the last two to a reader of signed numbers.
    for (const std::uint32_t given : {4U, 5U, 7U, 255U, 256U, 258U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU})
    {
        topApi().manageXpic.XpicPreamble = static_cast<TiManageXpic::PreambleType>(given);
        unsigned char preamble = 99;
        EXPECT_EQ(0, commands().getXpicPreamble(1, &preamble));
        EXPECT_EQ(255, preamble) << "given " << given;
    }
}

TEST_F(XpicCommandsTest, FailedReadLeavesThePreambleByteAsItWas)
{
    answer(topApi().manageXpic, 1, "no preamble");
    topApi().manageXpic.XpicPreamble = TiManageXpic::PreambleType::Preamble2;
    unsigned char preamble = 99;
    EXPECT_EQ(1, commands().getXpicPreamble(1, &preamble));
    EXPECT_EQ(99, preamble);
}

TEST_F(XpicCommandsTest, NegativeCodeIsASuccessAndDeliversThePreamble)
{
    answer(topApi().manageXpic, -1, "a hint");
    topApi().manageXpic.XpicPreamble = TiManageXpic::PreambleType::Preamble2;
    unsigned char preamble = 99;
    EXPECT_EQ(0, commands().getXpicPreamble(1, &preamble));
    EXPECT_EQ(2, preamble);
    EXPECT_THAT(messages(), IsEmpty());
}

} // namespace
