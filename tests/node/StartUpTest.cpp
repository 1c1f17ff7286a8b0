#include "node/StartUpTest.h"

#include <memory>

using node::startup::Configuration;
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
    EXPECT_EQ(dynamic_cast<kel::device::kelDebugCmd::KelDebugCmd*>(modules().front()), &node.commands());
}

TEST_F(NodeStartUpTest, ANodeWithTwoChannelsControlsThePredistortionOfBoth)
{
    Node node(Configuration{2, {}});
    EXPECT_EQ(0, node.commands().stopDpd(1));
    EXPECT_EQ(0, node.commands().stopDpd(2));
}

TEST_F(NodeStartUpTest, ANodeWithOneChannelControlsThePredistortionOfThatOne)
{
    Node node(Configuration{1, {}});
    EXPECT_EQ(0, node.commands().stopDpd(1));
    EXPECT_EQ(1, node.commands().stopDpd(2));
    EXPECT_THAT(recorder.messages, IsEmpty());
}

TEST_F(NodeStartUpTest, ANodeWithOneChannelNeedsNoSecondController)
{
    EXPECT_EQ("started", failure({1, {"IDpdControllerSplit_2"}}));
}

TEST_F(NodeStartUpTest, ANodeStartsAfreshAfterAnotherOne)
{
    {
        Node node;
        EXPECT_EQ(0, node.commands().setXpicPreamble(1, 2));
    }
    Node node;
    unsigned char preamble = 99;
    EXPECT_EQ(0, node.commands().getXpicPreamble(1, &preamble));
    EXPECT_EQ(0U, preamble);
}

TEST_F(NodeStartUpTest, AnInterfaceThatNobodyOffersIsNotMissed)
{
    EXPECT_EQ("started", failure({2, {"INothing"}}));
}

TEST_F(NodeStartUpTest, EveryRegisteredModuleIsInitialised)
{
    OtherModule other("Fan");
    {
        const Node node;
        EXPECT_EQ(1, other.initialisations);
    }
    EXPECT_THAT(modules(), ElementsAre(&other));
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
