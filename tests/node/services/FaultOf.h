#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "node/services/FaultPlan.h"

/// A fault in words: FaultOf("tiManageXpic").onChannel(2).withCode(7).
struct FaultOf : node::services::Fault
{
    explicit FaultOf(std::string_view name)
    {
        call = node::services::findPlatformCall(name);
        EXPECT_NE(nullptr, call) << name;
    }

    FaultOf& onChannel(std::optional<RadioChannel> only)
    {
        channel = only;
        return *this;
    }

    FaultOf& withCode(std::optional<std::int32_t> answered)
    {
        code = answered;
        return *this;
    }

    FaultOf& withText(const std::string& answered)
    {
        text = answered;
        return *this;
    }

    FaultOf& throwing()
    {
        throws = true;
        return *this;
    }

    FaultOf& from(std::uint64_t first)
    {
        fromCall = first;
        return *this;
    }

    FaultOf& times(std::optional<std::uint64_t> hits)
    {
        calls = hits;
        return *this;
    }
};
