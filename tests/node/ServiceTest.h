#pragma once

#include <cstdint>

#include <gtest/gtest.h>

#include "kel_top_api/BaseResponse.h"
#include "node/radio/RadioLink.h"
#include "node/services/TopApi.h"
#include "radio/RadioChannel.h"

/// A link with the top-level API bound to it. Most tests run for each of its channels.
class ServiceTest : public ::testing::TestWithParam<RadioChannel>
{
protected:
    RadioChannel channel = GetParam();
    RadioChannel otherChannel = 3 - GetParam();
    node::radio::RadioLink link;
    node::services::TopApiBinding binding{link};
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
