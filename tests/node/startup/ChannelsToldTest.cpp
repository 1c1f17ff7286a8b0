#include <optional>
#include <ostream>

#include "node/startup/StartUpTest.h"

using node::startup::Node;
using ::testing::IsEmpty;

namespace
{

/// How many channels a module is told, on a link of one or two, and which of them it then controls.
struct ToldRow
{
    std::uint32_t numberOfChannels;
    std::optional<int> told;
    bool controlsFirst;
    bool controlsSecond;
};

std::ostream& operator<<(std::ostream& out, const ToldRow& row)
{
    return out << "of " << row.numberOfChannels << " told " << (row.told ? std::to_string(*row.told) : "nothing");
}

class ChannelsToldTest : public NodeStartUpTest, public ::testing::WithParamInterface<ToldRow>
{
};

TEST_P(ChannelsToldTest, DecidesWhosePredistortionTheCommandsControl)
{
    Configuration configuration = withChannels(GetParam().numberOfChannels);
    configuration.channelsTold = GetParam().told;
    Node node(configuration);
    EXPECT_EQ(GetParam().controlsFirst ? 0 : 1, node.commands()->stopDpd(1));
    EXPECT_EQ(GetParam().controlsSecond ? 0 : 1, node.commands()->stopDpd(2));
    EXPECT_EQ(!GetParam().controlsFirst, node.link().snapshot(1).state.dpd.running);
    EXPECT_EQ(GetParam().numberOfChannels, node.link().numberOfChannels());
    EXPECT_THAT(recorder.messages, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(EachNumber, ChannelsToldTest,
                         ::testing::Values(ToldRow{2, std::nullopt, true, true}, ToldRow{2, 2, true, true},
                                           ToldRow{2, 1, true, false}, ToldRow{2, 0, false, false},
                                           ToldRow{2, 3, false, false}, ToldRow{2, -1, false, false},
                                           ToldRow{1, std::nullopt, true, false}, ToldRow{1, 1, true, false},
                                           ToldRow{1, 0, false, false}, ToldRow{1, 3, false, false}));

TEST_F(NodeStartUpTest, AModuleToldOfASecondChannelMissesItsController)
{
    Configuration configuration = withChannels(1);
    configuration.channelsTold = 2;
    EXPECT_EQ("module KelDebugCmd: onModuleInit() answered 0x8000, expected 0", failure(configuration));
    expectComplaint("Error getting interface to IDpdControllerSplit_2");
    expectNothingThere();
    expectANodeStarts();
}

} // namespace
