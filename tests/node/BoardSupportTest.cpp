#include <gtest/gtest.h>

#include "node/cli/RecordingCommands.h"
#include "node/services/BoardSupport.h"

namespace
{

TEST(BoardSupportTest, StartsWithoutACallback)
{
    const node::services::BoardSupport boardSupport;
    EXPECT_EQ(nullptr, boardSupport.installedCallback());
}

TEST(BoardSupportTest, KeepsTheCallbackThatWasInstalledLast)
{
    RecordingCommands first;
    RecordingCommands last;
    node::services::BoardSupport boardSupport;
    boardSupport.installDebugCmdCallback(&first);
    EXPECT_EQ(&first, boardSupport.installedCallback());
    boardSupport.installDebugCmdCallback(&last);
    EXPECT_EQ(&last, boardSupport.installedCallback());
    EXPECT_TRUE(first.calls.empty());
    EXPECT_TRUE(last.calls.empty());
}

} // namespace
