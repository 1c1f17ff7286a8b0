#include <limits>

#include "module/PlatformTest.h"

using doubles::lineMessage;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

namespace
{

constexpr std::int32_t Failure = 0x8000;
constexpr auto LookUp = "InterfaceBroker.getInstance()";
constexpr auto Install = "IRlbspKelApi.installDebugCmdCallback()";

using StartUpTest = PlatformTest;

TEST_F(StartUpTest, BothTraceChannelsAreCreatedAtLevelThree)
{
    EXPECT_THAT(doubles::trace().created,
                ElementsAre(Pair("KEL.KDC.GetCtStatusDebugCmd", 3), Pair("KEL.KDC.KelDebugCmd", 3)));
}

TEST_F(StartUpTest, BoardSupportIsLookedUpBeforeTheControllersOfBothChannels)
{
    EXPECT_EQ(0, start(2));
    EXPECT_THAT(calls(), ElementsAre(LookUp, Install, LookUp, LookUp));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(StartUpTest, NodeWithOneChannelHasOneController)
{
    EXPECT_EQ(0, start(1));
    EXPECT_THAT(calls(), ElementsAre(LookUp, Install, LookUp));
    EXPECT_EQ(0, commands().stopDpd(1));
    EXPECT_EQ(1, commands().stopDpd(2));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(StartUpTest, NodeWithAnyOtherNumberOfChannelsHasNoControllers)
{
    for (const int channels : {0, 3, 4, -1, -2, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
    {
        EXPECT_EQ(0, start(channels)) << channels << " channels";
        EXPECT_THAT(calls(), ElementsAre(LookUp, Install)) << channels << " channels";
        EXPECT_EQ(1, commands().stopDpd(1)) << channels << " channels";
        EXPECT_EQ(1, commands().stopDpd(2)) << channels << " channels";
        EXPECT_EQ(0, commands().getCtStatus(1, report)) << channels << " channels";
    }
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(StartUpTest, OtherCommandsWorkAfterAControllerIsMissing)
{
    interfaces().erase("IDpdControllerSplit_1");
    EXPECT_EQ(Failure, start(2));
    EXPECT_EQ(0, commands().getCtStatus(1, report));
    EXPECT_THAT(report, ::testing::HasSubstr("CT info channel 1\n"));
    EXPECT_EQ(0, commands().setXpicPreamble(1, 1));
}

TEST_F(StartUpTest, SecondInitialisationInstallsAgainAndKeepsWorking)
{
    EXPECT_EQ(0, start(2));
    boardSupport->installed = nullptr;
    doubles::calls().clear();
    EXPECT_EQ(0, module->onModuleInit());
    EXPECT_THAT(calls(), ElementsAre(LookUp, Install, LookUp, LookUp));
    ASSERT_NE(nullptr, boardSupport->installed);
    EXPECT_EQ(0, commands().getCtStatus(2, report));
    EXPECT_THAT(report, ::testing::HasSubstr("CT info channel 2\n"));
    EXPECT_EQ(0, commands().startDpd(2));
}

TEST_F(StartUpTest, SecondInitialisationForgetsAControllerThatIsGone)
{
    EXPECT_EQ(0, start(2));
    interfaces().erase("IDpdControllerSplit_2");
    EXPECT_EQ(Failure, module->onModuleInit());
    EXPECT_EQ(0, commands().stopDpd(1));
    EXPECT_EQ(1, commands().stopDpd(2));
}

TEST_F(StartUpTest, InterfacesAreBorrowedNotShared)
{
    EXPECT_EQ(0, start(2));
    EXPECT_EQ(2, boardSupport.use_count());
    EXPECT_EQ(2, dpd1.use_count());
    EXPECT_EQ(2, dpd2.use_count());
}

/// What may stand in the broker instead of an interface.
struct Substitute
{
    std::string name;
    void (*put)(InterfaceBroker::Interfaces& interfaces, const std::string& key);
};

std::ostream& operator<<(std::ostream& out, const Substitute& substitute)
{
    return out << substitute.name;
}

class MissingInterfaceTest : public PlatformTest, public ::testing::WithParamInterface<Substitute>
{
protected:
    void replace(const std::string& key)
    {
        GetParam().put(interfaces(), key);
    }
};

TEST_P(MissingInterfaceTest, WithoutBoardSupportNothingElseIsDone)
{
    replace("IRlbspKelApi");
    EXPECT_EQ(Failure, start(2));
    EXPECT_THAT(calls(), ElementsAre(LookUp));
    EXPECT_EQ(nullptr, boardSupport->installed);
    EXPECT_EQ(1, module->stopDpd(1));
    EXPECT_THAT(messages(),
                ElementsAre(lineMessage("onModuleInit", "onModuleInit(): failed to get interface toIRlbspKelApi\n")));
}

TEST_P(MissingInterfaceTest, WithoutTheFirstControllerTheSecondIsNotLookedUp)
{
    replace("IDpdControllerSplit_1");
    EXPECT_EQ(Failure, start(2));
    EXPECT_THAT(calls(), ElementsAre(LookUp, Install, LookUp));
    EXPECT_EQ(1, commands().stopDpd(1));
    EXPECT_EQ(1, commands().stopDpd(2));
    EXPECT_THAT(messages(), ElementsAre(lineMessage(
                                "onModuleInit", "onModuleInit(): Error getting interface to IDpdControllerSplit_1\n")));
}

TEST_P(MissingInterfaceTest, WithoutTheSecondControllerTheFirstStaysInPlace)
{
    replace("IDpdControllerSplit_2");
    EXPECT_EQ(Failure, start(2));
    EXPECT_THAT(calls(), ElementsAre(LookUp, Install, LookUp, LookUp));
    EXPECT_EQ(0, commands().stopDpd(1));
    EXPECT_EQ(1, commands().stopDpd(2));
    EXPECT_THAT(messages(), ElementsAre(lineMessage(
                                "onModuleInit", "onModuleInit(): Error getting interface to IDpdControllerSplit_2\n")));
}

TEST_P(MissingInterfaceTest, SilentTraceDropsTheLineAndKeepsTheResult)
{
    silenceTrace();
    replace("IRlbspKelApi");
    EXPECT_EQ(Failure, start(2));
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ("onModuleInit(): failed to get interface toIRlbspKelApi\n", doubles::trace().discarded);
}

INSTANTIATE_TEST_SUITE_P(
    BrokerEntry, MissingInterfaceTest,
    ::testing::Values(Substitute{"absent", [](InterfaceBroker::Interfaces& interfaces, const std::string& key)
                                 { interfaces.erase(key); }},
                      Substitute{"empty", [](InterfaceBroker::Interfaces& interfaces, const std::string& key)
                                 { interfaces[key] = nullptr; }},
                      Substitute{"ofAnotherType", [](InterfaceBroker::Interfaces& interfaces, const std::string& key)
                                 { interfaces[key] = std::make_shared<doubles::OtherInterface>(); }}),
    ::testing::PrintToStringParamName());

} // namespace
