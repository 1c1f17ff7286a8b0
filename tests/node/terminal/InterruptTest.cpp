#include <chrono>
#include <csignal>
#include <optional>

#include <gtest/gtest.h>

#include "node/terminal/Interrupt.h"

namespace
{

using node::terminal::Interrupt;

TEST(InterruptTest, CtrlCIsToldOnce)
{
    Interrupt interrupt;
    EXPECT_FALSE(interrupt.happened());
    std::raise(SIGINT);
    EXPECT_TRUE(interrupt.happened());
    EXPECT_FALSE(interrupt.happened());
    std::raise(SIGINT);
    EXPECT_TRUE(interrupt.happensWithin(std::chrono::hours(1)));
    EXPECT_FALSE(interrupt.happensWithin(std::chrono::milliseconds(0)));
}

TEST(InterruptTest, WhatNobodyToldIsDroppedAtTheEnd)
{
    {
        const Interrupt interrupt;
        std::raise(SIGINT);
    }
    Interrupt another;
    EXPECT_FALSE(another.happened());
}

TEST(InterruptTest, WhatNobodyToldInsideOfAnotherIsToldThere)
{
    Interrupt outside;
    std::optional<Interrupt> inside(std::in_place);
    std::raise(SIGINT);
    inside.reset();
    EXPECT_TRUE(outside.happened());

    inside.emplace();
    std::raise(SIGINT);
    EXPECT_TRUE(inside->happened());
    inside.reset();
    EXPECT_FALSE(outside.happened());
}

TEST(IgnoredInterruptTest, IsNotedAllTheSame)
{
    std::signal(SIGINT, SIG_IGN);
    Interrupt interrupt;
    std::raise(SIGINT);
    EXPECT_TRUE(interrupt.happened());
    std::signal(SIGINT, SIG_DFL);
}

} // namespace
