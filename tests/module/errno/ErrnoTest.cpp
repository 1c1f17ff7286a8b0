#include <cerrno>
#include <new>

#include "module/ModuleTest.h"
#include "module/NamedCommand.h"
#include "module/errno/DisturbedErrno.h"

using Callback = IRlbspKelApi::KelDebugCmdCallback;

namespace
{

/// The module composes a message between its question whether the channel is active and the begin of the message.
class ErrnoTest : public ModuleTest, public ::testing::WithParamInterface<NamedCommand>
{
protected:
    ErrnoTest()
    {
        failAllServices();
        doubles::trace().afterActiveTest = []
        {
            disturbedErrno::begin();
            errno = disturbedErrno::OfTheCaller;
        };
        doubles::trace().beforeBegin = [this]
        {
            disturbedErrno::end();
            atBegin = errno;
        };
    }

    ~ErrnoTest() override
    {
        doubles::trace().reset();
    }

    void SetUp() override
    {
        disturbedErrno::begin();
        ::operator delete(::operator new(1));
        disturbedErrno::end();
        if (disturbedErrno::allocations() == 0)
        {
            GTEST_SKIP() << "a tool replaces operator new";
        }
    }

    int run()
    {
        const int result = GetParam().run(commands(), 1);
        atEnd = errno;
        disturbedErrno::end();
        return result;
    }

    int atBegin = 0;
    int atEnd = 0;
};

TEST_P(ErrnoTest, ComposingTheMessageDoesNotShow)
{
    EXPECT_EQ(1, run());
    EXPECT_EQ(disturbedErrno::OfTheCaller, atBegin);
    EXPECT_EQ(disturbedErrno::OfTheCaller, atEnd);
    EXPECT_LT(0, disturbedErrno::allocations());
}

using SilentErrnoTest = ErrnoTest;

TEST_P(SilentErrnoTest, NothingIsComposedAndTheErrorNumberIsLeftAlone)
{
    silenceTrace();
    EXPECT_EQ(1, run());
    EXPECT_EQ(disturbedErrno::OfTheCaller, atEnd);
    EXPECT_EQ(0, disturbedErrno::allocations());
}

const std::vector<NamedCommand> Configuration = {
    {"calibratePps", [](Callback& to, RadioChannel channel) { return to.calibratePps(channel, 0, 0); }},
    {"setPpsOutputMode", [](Callback& to, RadioChannel channel) { return to.setPpsOutputMode(channel, 0); }},
    {"setPpsSource", [](Callback& to, RadioChannel channel) { return to.setPpsSource(channel, 0, 0); }},
};

const std::vector<NamedCommand> Reports = {
    {"getPpsCalibrationStatus",
     [](Callback& to, RadioChannel channel)
     {
         std::string report;
         return to.getPpsCalibrationStatus(channel, report);
     }},
    {"getPpsHopLengthTime",
     [](Callback& to, RadioChannel channel)
     {
         std::string report;
         return to.getPpsHopLengthTime(channel, report);
     }},
};

INSTANTIATE_TEST_SUITE_P(Configuration, ErrnoTest, ::testing::ValuesIn(Configuration),
                         ::testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Reports, ErrnoTest, ::testing::ValuesIn(Reports), ::testing::PrintToStringParamName());

// A report allocates for its own text, with the trace active or not; the configuration commands have nothing else.
INSTANTIATE_TEST_SUITE_P(Configuration, SilentErrnoTest, ::testing::ValuesIn(Configuration),
                         ::testing::PrintToStringParamName());

} // namespace
