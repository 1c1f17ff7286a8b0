#include <ostream>
#include <tuple>

#include "node/startup/StartUpTest.h"

using ::testing::IsEmpty;

namespace
{

using Entry = node::startup::BrokerEntry;

/// What a node misses when a key of its broker has no service.
struct KeyRow
{
    std::string key;
    std::uint32_t numberOfChannels;
    std::string complaint; ///< empty: nothing
};

std::ostream& operator<<(std::ostream& out, const KeyRow& row)
{
    return out << row.key << " on " << row.numberOfChannels;
}

class BrokerEntryTest : public NodeStartUpTest, public ::testing::WithParamInterface<std::tuple<KeyRow, Entry>>
{
};

TEST_P(BrokerEntryTest, ANodeWithoutAServiceThatItsModuleLooksUpDoesNotStart)
{
    const auto& [row, entry] = GetParam();
    Configuration configuration = withChannels(row.numberOfChannels);
    configuration.broker = {{row.key, entry}};
    if (row.complaint.empty())
    {
        EXPECT_EQ("started", failure(configuration));
        EXPECT_THAT(recorder.messages, IsEmpty());
    }
    else
    {
        EXPECT_EQ("module KelDebugCmd: onModuleInit() answered 0x8000, expected 0", failure(configuration));
        expectComplaint(row.complaint);
    }
    expectNothingThere();
    expectANodeStarts();
}

INSTANTIATE_TEST_SUITE_P(
    EachKeyAndEntry, BrokerEntryTest,
    ::testing::Combine(
        ::testing::Values(KeyRow{"IRlbspKelApi", 1, "failed to get interface toIRlbspKelApi"},
                          KeyRow{"IRlbspKelApi", 2, "failed to get interface toIRlbspKelApi"},
                          KeyRow{"IDpdControllerSplit_1", 1, "Error getting interface to IDpdControllerSplit_1"},
                          KeyRow{"IDpdControllerSplit_1", 2, "Error getting interface to IDpdControllerSplit_1"},
                          KeyRow{"IDpdControllerSplit_2", 1, ""},
                          KeyRow{"IDpdControllerSplit_2", 2, "Error getting interface to IDpdControllerSplit_2"},
                          KeyRow{"INothing", 2, ""}),
        ::testing::Values(Entry::Absent, Entry::Empty, Entry::OtherType)));

class BrokerEntriesTest : public NodeStartUpTest
{
protected:
    static IInterface* entryOf(const std::string& key)
    {
        return interfaces().at(key).get();
    }
};

TEST_F(BrokerEntriesTest, AreAsToldWhileTheNodeRuns)
{
    Configuration configuration;
    configuration.runsWithFailedModules = true;
    configuration.broker = {{"IRlbspKelApi", Entry::Service},
                            {"IDpdControllerSplit_1", Entry::Empty},
                            {"IDpdControllerSplit_2", Entry::OtherType}};
    const node::startup::Node node(configuration);
    EXPECT_EQ(3U, interfaces().size());
    EXPECT_NE(nullptr, dynamic_cast<node::services::BoardSupport*>(entryOf("IRlbspKelApi")));
    EXPECT_EQ(nullptr, entryOf("IDpdControllerSplit_1"));
    EXPECT_NE(nullptr, entryOf("IDpdControllerSplit_2"));
    EXPECT_EQ(nullptr, dynamic_cast<IDpdControllerSplit*>(entryOf("IDpdControllerSplit_2")));
}

TEST_F(BrokerEntriesTest, ThatAreAbsentHaveNoKey)
{
    Configuration configuration;
    configuration.runsWithFailedModules = true;
    configuration.broker = {{"IRlbspKelApi", Entry::Absent}, {"IDpdControllerSplit_2", Entry::Absent}};
    const node::startup::Node node(configuration);
    EXPECT_THAT(interfaces(), ::testing::ElementsAre(::testing::Key("IDpdControllerSplit_1")));
}

TEST_F(BrokerEntriesTest, WithoutAnyTheBoardSupportInterfaceIsMissedFirst)
{
    Configuration configuration;
    configuration.broker = {{"IRlbspKelApi", Entry::Absent},
                            {"IDpdControllerSplit_1", Entry::Absent},
                            {"IDpdControllerSplit_2", Entry::Absent}};
    EXPECT_EQ("module KelDebugCmd: onModuleInit() answered 0x8000, expected 0", failure(configuration));
    expectComplaint("failed to get interface toIRlbspKelApi");
}

} // namespace
