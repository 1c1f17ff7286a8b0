#pragma once

#include <string>

#include <gtest/gtest.h>

#include "kel_top_api/BaseResponse.h"
#include "node/radio/RadioLink.h"
#include "node/services/FaultPlan.h"
#include "node/services/ServiceContext.h"
#include "node/services/TopApi.h"
#include "radio/RadioChannel.h"

/// A link, and the top-level API bound to it.
struct ServiceBench
{
    explicit ServiceBench(const node::radio::LinkSetup& setup = {}) : link(setup)
    {
    }

    node::radio::RadioLink link;
    node::services::FaultPlan faults;
    node::services::ServiceContext context{link, faults};
    node::services::TopApiBinding binding{context};
};

inline node::radio::LinkSetup oneChannel()
{
    node::radio::LinkSetup setup;
    setup.numberOfChannels = 1;
    return setup;
}

/// Most tests of services run for each channel of the link.
class ServiceTest : public ::testing::TestWithParam<RadioChannel>, protected ServiceBench
{
protected:
    RadioChannel channel = GetParam();
    RadioChannel otherChannel = 3 - GetParam();
};

inline void expectDone(const kel_top_api::BaseResponse& response)
{
    EXPECT_EQ(0, response.resultCode);
    EXPECT_EQ("", response.resultText);
    EXPECT_EQ(0U, response.opaqueWord);
}

inline void expectRefused(const std::string& reason, const kel_top_api::BaseResponse& response)
{
    EXPECT_EQ(1, response.resultCode);
    EXPECT_EQ(reason, response.resultText);
    EXPECT_EQ(0U, response.opaqueWord);
}
