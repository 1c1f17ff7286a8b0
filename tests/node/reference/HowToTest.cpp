#include <fstream>
#include <iterator>
#include <string>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/output/Answer.h"
#include "node/reference/HowTo.h"

using node::output::Status;
using node::reference::exitStatuses;
using ::testing::HasSubstr;

namespace
{

TEST(HowToTest, EveryExitStatusHasItsMeaning)
{
    ASSERT_EQ(4U, exitStatuses().size());
    EXPECT_EQ(static_cast<int>(Status::Done), exitStatuses()[0].number);
    EXPECT_EQ(static_cast<int>(Status::CommandFailed), exitStatuses()[1].number);
    EXPECT_EQ(static_cast<int>(Status::NotUnderstood), exitStatuses()[2].number);
    EXPECT_EQ(static_cast<int>(Status::NotStarted), exitStatuses()[3].number);
}

TEST(HowToTest, ThePageOfTheSimulatedNodeHasTheExitStatuses)
{
    std::ifstream file(KEL_SOURCE_DIR "/docs/simulated-node.md");
    const std::string page(std::istreambuf_iterator<char>(file), {});
    std::string rows = "| Exit status | Meaning |\n|---|---|\n";
    for (const auto& status : exitStatuses())
    {
        rows += fmt::format("| {} | {} |\n", status.number, status.meaning);
    }
    EXPECT_THAT(page, HasSubstr("\n" + rows + "\n"));
}

} // namespace
