#include "node/StartUpTest.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

using NodeStartUpFailureTest = NodeStartUpTest;

TEST_F(NodeStartUpFailureTest, WithoutTheBoardSupportInterfaceTheModuleDoesNotStart)
{
    EXPECT_EQ("module KelDebugCmd: onModuleInit() answered 0x8000, expected 0", failure({2, {"IRlbspKelApi"}}));
    expectComplaint("onModuleInit(): failed to get interface toIRlbspKelApi\n");
    expectNothingThere();
    expectANodeStarts();
}

TEST_F(NodeStartUpFailureTest, WithoutTheSecondControllerTheModuleDoesNotStartOnTwoChannels)
{
    EXPECT_EQ("module KelDebugCmd: onModuleInit() answered 0x8000, expected 0",
              failure({2, {"IDpdControllerSplit_2"}}));
    expectComplaint("onModuleInit(): Error getting interface to IDpdControllerSplit_2\n");
    expectNothingThere();
    expectANodeStarts();
}

TEST_F(NodeStartUpFailureTest, WithoutTheFirstControllerTheModuleDoesNotStartOnOneChannel)
{
    EXPECT_EQ("module KelDebugCmd: onModuleInit() answered 0x8000, expected 0",
              failure({1, {"IDpdControllerSplit_1"}}));
    expectComplaint("onModuleInit(): Error getting interface to IDpdControllerSplit_1\n");
    expectNothingThere();
    expectANodeStarts();
}

TEST_F(NodeStartUpFailureTest, WithoutAnyInterfaceTheModuleMissesTheBoardSupportInterfaceFirst)
{
    EXPECT_EQ("module KelDebugCmd: onModuleInit() answered 0x8000, expected 0",
              failure({1, {"IRlbspKelApi", "IDpdControllerSplit_1", "IDpdControllerSplit_2"}}));
    expectComplaint("onModuleInit(): failed to get interface toIRlbspKelApi\n");
}

TEST_F(NodeStartUpFailureTest, AModuleOfTheSameNameKeepsTheNodeFromStarting)
{
    {
        OtherModule other("KelDebugCmd");
        EXPECT_EQ("module KelDebugCmd: found registered already, expected a name of its own", failure({}));
        EXPECT_THAT(modules(), ElementsAre(&other));
        EXPECT_THAT(interfaces(), IsEmpty());
        EXPECT_EQ(0, other.initialisations);
    }
    expectNothingThere();
    expectANodeStarts();
}

TEST_F(NodeStartUpFailureTest, AModuleThatRefusesIsNamed)
{
    OtherModule other("Fan", 17);
    EXPECT_EQ("module Fan: onModuleInit() answered 0x11, expected 0", failure({}));
    EXPECT_THAT(modules(), ElementsAre(&other));
    EXPECT_THAT(interfaces(), IsEmpty());
}

} // namespace
