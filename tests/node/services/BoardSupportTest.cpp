#include <gtest/gtest.h>

#include "node/commands/RecordingCommands.h"
#include "node/services/BoardSupport.h"
#include "node/services/FaultOf.h"

using node::services::BoardSupport;
using node::services::FaultPlan;
using node::services::PlannedException;

namespace
{

class BoardSupportTest : public ::testing::Test
{
protected:
    FaultPlan faults;
    BoardSupport boardSupport{faults};
    RecordingCommands first;
    RecordingCommands last;
};

TEST_F(BoardSupportTest, StartsWithoutACallback)
{
    EXPECT_EQ(nullptr, boardSupport.installedCallback());
}

TEST_F(BoardSupportTest, KeepsTheCallbackThatWasInstalledLast)
{
    boardSupport.installDebugCmdCallback(&first);
    EXPECT_EQ(&first, boardSupport.installedCallback());
    boardSupport.installDebugCmdCallback(&last);
    EXPECT_EQ(&last, boardSupport.installedCallback());
}

TEST_F(BoardSupportTest, ACallbackCanBeTakenOutAgain)
{
    boardSupport.installDebugCmdCallback(&first);
    boardSupport.installDebugCmdCallback(nullptr);
    EXPECT_EQ(nullptr, boardSupport.installedCallback());
}

TEST_F(BoardSupportTest, AnInstallationThatThrowsKeepsTheCallbackBefore)
{
    boardSupport.installDebugCmdCallback(&first);
    faults.add(FaultOf("IRlbspKelApi.installDebugCmdCallback").throwing());
    EXPECT_THROW(boardSupport.installDebugCmdCallback(&last), PlannedException);
    EXPECT_EQ(&first, boardSupport.installedCallback());
}

} // namespace
