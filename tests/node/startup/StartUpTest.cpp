#include "node/startup/StartUpTest.h"

#include <memory>

#include "node/services/FaultOf.h"
#include "radio/IDpdControllerSplit.h"

using node::startup::Node;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Key;

namespace
{

TEST_F(NodeStartUpTest, ANodeHasItsModuleAndItsServices)
{
    Node node;
    ASSERT_EQ(1U, modules().size());
    EXPECT_EQ("KelDebugCmd", modules().front()->registration().name);
    EXPECT_THAT(interfaces(),
                ElementsAre(Key("IDpdControllerSplit_1"), Key("IDpdControllerSplit_2"), Key("IRlbspKelApi")));
    EXPECT_THAT(recorder.messages, IsEmpty());
}

TEST_F(NodeStartUpTest, TheCommandsOfANodeAreThoseOfItsModule)
{
    Node node;
    EXPECT_EQ(dynamic_cast<kel::device::kelDebugCmd::KelDebugCmd*>(modules().front()), node.commands());
    EXPECT_EQ(dynamic_cast<node::services::BoardSupport*>(interfaces()["IRlbspKelApi"].get())->installedCallback(),
              node.commands());
}

TEST_F(NodeStartUpTest, EachChannelHasAControllerOfItsOwn)
{
    Node node;
    for (const RadioChannel channel : {1U, 2U})
    {
        const auto& service = interfaces()["IDpdControllerSplit_" + std::to_string(channel)];
        auto* const controller = dynamic_cast<IDpdControllerSplit*>(service.get());
        ASSERT_NE(nullptr, controller);
        EXPECT_EQ(EDPDResult::Success, controller->stop());
        EXPECT_FALSE(node.link().snapshot(channel).state.dpd.running);
        EXPECT_EQ(channel == 1, node.link().snapshot(2).state.dpd.running);
    }
}

TEST_F(NodeStartUpTest, ANodeOfOneChannelHasOneController)
{
    Node node(withChannels(1));
    EXPECT_THAT(interfaces(), ElementsAre(Key("IDpdControllerSplit_1"), Key("IRlbspKelApi")));
    EXPECT_EQ(1U, node.link().numberOfChannels());
}

TEST_F(NodeStartUpTest, TheSecondChannelOfANodeOfOneIsRefused)
{
    Node node(withChannels(1));
    std::string report;
    EXPECT_EQ(1, node.commands()->getPpsHopLengthTime(2, report));
    EXPECT_EQ("Data could not be retrieved!", report);
    EXPECT_EQ(1, node.commands()->getBcmModemStatus(2, report));
    EXPECT_EQ(0, node.commands()->getCtStatus(2, report));
    EXPECT_EQ("Data could not be retrieved!", report);
    EXPECT_THAT(recorder.texts(), ElementsAre("getPpsHopLengthTime(): failed: radio channel: found 2, expected 1",
                                              "getBcmModemStatus failed: radio channel: found 2, expected 1\n",
                                              "get failed: radio channel: found 2, expected 1\n"));
}

TEST_F(NodeStartUpTest, TheLinkIsTheOneThatTheCommandsChange)
{
    Node node;
    EXPECT_EQ(0, node.commands()->setXpicSlaveMute(2, 1));
    EXPECT_TRUE(node.link().snapshot(2).state.xpic.slaveMuted);
    EXPECT_FALSE(node.link().snapshot(1).state.xpic.slaveMuted);
}

TEST_F(NodeStartUpTest, TheLinkBeginsAsConfigured)
{
    Configuration configuration;
    configuration.link.hop.distance_km = 1.0;
    configuration.link.channels[1].xpic.slaveMuted = true;
    Node node(configuration);
    std::string report;
    EXPECT_EQ(0, node.commands()->getPpsHopLengthTime(1, report));
    EXPECT_EQ("PPS hop length time[nsec]: 3000\n", report);
    EXPECT_TRUE(node.link().snapshot(2).state.xpic.slaveMuted);
}

TEST_F(NodeStartUpTest, ANodeStartsAfreshAfterAnotherOne)
{
    {
        Node node;
        EXPECT_EQ(0, node.commands()->setXpicPreamble(1, 2));
        node.faults().add(FaultOf("tiManageXpic").throwing());
    }
    Node node;
    unsigned char preamble = 99;
    EXPECT_EQ(0, node.commands()->getXpicPreamble(1, &preamble));
    EXPECT_EQ(0U, preamble);
    EXPECT_THAT(node.faults().list(), IsEmpty());
}

TEST_F(NodeStartUpTest, EveryRegisteredModuleIsInitialised)
{
    OtherModule other("Fan");
    {
        const Node node;
        EXPECT_EQ(1, other.initialisations);
    }
    EXPECT_THAT(modules(), ElementsAre(&other));
    CModuleManager::GetInstance().UnregisterModule(&other);
}

TEST_F(NodeStartUpTest, TheModuleGoesBeforeTheInterfacesAndTheyBeforeTheApi)
{
    struct Witness : IInterface
    {
        explicit Witness(std::string& place) : log(place)
        {
        }

        ~Witness() override
        {
            log += modules().empty() ? "no module, " : "module, ";
            log += kel_top_api::criGetHopLengthTimeDspPps({1}).resultCode == 0 ? "API" : "no API";
        }

        std::string& log;
    };
    std::string log;
    {
        const Node node;
        interfaces()["IWitness"] = std::make_shared<Witness>(log);
    }
    EXPECT_EQ("no module, API", log);
}

} // namespace
