#include <ostream>

#include <gtest/gtest.h>

#include "node/radio/Xpic.h"

using node::radio::Xpic;
using node::radio::XpicAcquireMode;
using node::radio::XpicState;
using enum XpicState;

namespace
{

enum class Event
{
    Start,
    Nothing,
    OwnSignalGoes,
    SlaveSignalGoes,
    PreamblesPart,
};

struct Transition
{
    XpicState before;
    Event event;
    XpicState after;
    XpicState withoutReacquiring;
};

std::ostream& operator<<(std::ostream& out, const Transition& row)
{
    return out << "state " << static_cast<int>(row.before) << ", event " << static_cast<int>(row.event);
}

class XpicTransitionTest : public ::testing::TestWithParam<Transition>
{
protected:
    /// @return whether anything was given up
    static bool happens(Event event, Xpic& xpic)
    {
        if (event == Event::Start)
        {
            xpic.startAcquisition();
            return false;
        }
        return xpic.fall({.ownSignal = event != Event::OwnSignalGoes,
                          .slaveSignal = event != Event::SlaveSignalGoes,
                          .preamblesAgree = event != Event::PreamblesPart});
    }
};

TEST_P(XpicTransitionTest, LeadsToItsState)
{
    Xpic xpic;
    xpic.state = GetParam().before;
    happens(GetParam().event, xpic);
    EXPECT_EQ(GetParam().after, xpic.state);
}

TEST_P(XpicTransitionTest, LeadsToItsStateWhereNothingIsReacquired)
{
    Xpic xpic;
    xpic.reacquires = false;
    xpic.state = GetParam().before;
    happens(GetParam().event, xpic);
    EXPECT_EQ(GetParam().withoutReacquiring, xpic.state);
}

TEST_P(XpicTransitionTest, TellsWhetherSomethingWasGivenUp)
{
    Xpic xpic;
    xpic.state = GetParam().before;
    EXPECT_EQ(GetParam().before == Acquired && GetParam().withoutReacquiring == Lost, happens(GetParam().event, xpic));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(EveryStateAndEvent, XpicTransitionTest, ::testing::Values(
    Transition{Idle,      Event::Start,           Acquiring, Acquiring},
    Transition{Idle,      Event::Nothing,         Idle,      Idle},
    Transition{Idle,      Event::OwnSignalGoes,   Idle,      Idle},
    Transition{Idle,      Event::SlaveSignalGoes, Idle,      Idle},
    Transition{Idle,      Event::PreamblesPart,   Idle,      Idle},
    Transition{Acquiring, Event::Start,           Acquiring, Acquiring},
    Transition{Acquiring, Event::Nothing,         Acquiring, Acquiring},
    Transition{Acquiring, Event::OwnSignalGoes,   Acquiring, Acquiring},
    Transition{Acquiring, Event::SlaveSignalGoes, Acquiring, Acquiring},
    Transition{Acquiring, Event::PreamblesPart,   Acquiring, Acquiring},
    Transition{Acquired,  Event::Start,           Acquiring, Acquiring},
    Transition{Acquired,  Event::Nothing,         Acquired,  Acquired},
    Transition{Acquired,  Event::OwnSignalGoes,   Acquiring, Lost},
    Transition{Acquired,  Event::SlaveSignalGoes, Acquiring, Lost},
    Transition{Acquired,  Event::PreamblesPart,   Acquiring, Lost},
    Transition{Failed,    Event::Start,           Acquiring, Acquiring},
    Transition{Failed,    Event::Nothing,         Failed,    Failed},
    Transition{Failed,    Event::OwnSignalGoes,   Failed,    Failed},
    Transition{Failed,    Event::SlaveSignalGoes, Failed,    Failed},
    Transition{Failed,    Event::PreamblesPart,   Failed,    Failed},
    Transition{Lost,      Event::Start,           Acquiring, Acquiring},
    Transition{Lost,      Event::Nothing,         Lost,      Lost},
    Transition{Lost,      Event::OwnSignalGoes,   Lost,      Lost},
    Transition{Lost,      Event::SlaveSignalGoes, Lost,      Lost},
    Transition{Lost,      Event::PreamblesPart,   Lost,      Lost}));
// clang-format on

struct Meaning
{
    XpicState state;
    XpicAcquireMode mode;
    bool slaveMuted;
    bool cancels;
    bool started;
    bool sweeps;
};

std::ostream& operator<<(std::ostream& out, const Meaning& row)
{
    return out << "state " << static_cast<int>(row.state) << ", mode " << static_cast<int>(row.mode)
               << (row.slaveMuted ? ", muted" : "");
}

class XpicMeaningTest : public ::testing::TestWithParam<Meaning>
{
};

TEST_P(XpicMeaningTest, TellsWhatTheCancellerDoes)
{
    Xpic xpic;
    xpic.state = GetParam().state;
    xpic.mode = GetParam().mode;
    xpic.slaveMuted = GetParam().slaveMuted;
    EXPECT_EQ(GetParam().cancels, xpic.cancels());
    EXPECT_EQ(GetParam().started, xpic.started());
    EXPECT_EQ(GetParam().sweeps, xpic.sweeps());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(EachState, XpicMeaningTest, ::testing::Values(
    Meaning{Idle,      XpicAcquireMode::FullSweep,   false, false, false, false},
    Meaning{Acquiring, XpicAcquireMode::FullSweep,   false, false, true,  true},
    Meaning{Acquiring, XpicAcquireMode::NarrowSweep, false, false, true,  true},
    Meaning{Acquiring, XpicAcquireMode::Direct,      false, false, true,  false},
    Meaning{Acquiring, XpicAcquireMode::FullSweep,   true,  false, true,  true},
    Meaning{Acquired,  XpicAcquireMode::FullSweep,   false, true,  true,  false},
    Meaning{Acquired,  XpicAcquireMode::FullSweep,   true,  false, true,  false},
    Meaning{Failed,    XpicAcquireMode::FullSweep,   false, false, false, false},
    Meaning{Lost,      XpicAcquireMode::FullSweep,   false, false, false, false}));
// clang-format on

TEST(XpicTest, StartsAcquiredAndReadyToReacquireByAFullSweep)
{
    const Xpic xpic;
    EXPECT_EQ(Acquired, xpic.state);
    EXPECT_FALSE(xpic.slaveMuted);
    EXPECT_TRUE(xpic.cableConnected);
    EXPECT_EQ(0U, xpic.preamble);
    EXPECT_EQ(XpicAcquireMode::FullSweep, xpic.mode);
    EXPECT_TRUE(xpic.retries);
    EXPECT_TRUE(xpic.reacquires);
}

TEST(XpicTest, ATickMovesNothingUnlessItAcquires)
{
    for (const XpicState state : {Idle, Acquired, Failed, Lost})
    {
        Xpic xpic;
        xpic.state = state;
        xpic.position_Hz = 500;
        xpic.acquire({true, true, true, 1000});
        EXPECT_EQ(state, xpic.state);
        EXPECT_EQ(500, xpic.position_Hz);
    }
}

} // namespace
