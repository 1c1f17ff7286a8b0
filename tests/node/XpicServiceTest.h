#pragma once

#include <cstdint>
#include <functional>

#include <gtest/gtest.h>

#include "kel_top_api/TiManageXpic.h"
#include "node/ServiceTest.h"

/// Sends XPIC requests to a channel of the link.
class XpicServiceTest : public ServiceTest
{
protected:
    using TiManageXpic = kel_top_api::TiManageXpic;
    using Mode = TiManageXpic::AcquireModeType;
    using Option = TiManageXpic::AcquireOptionType;
    using Preamble = TiManageXpic::PreambleType;
    using Request = std::function<void(TiManageXpic::Command&)>;

    /// Sends a request to a channel.
    static TiManageXpic::Response send(RadioChannel to, const Request& request)
    {
        TiManageXpic::Command command;
        command.RadioChannelID = to;
        request(command);
        return kel_top_api::tiManageXpic(command);
    }

    static void status(TiManageXpic::Command& command)
    {
        command.GetStatus = true;
    }

    static Request muting(bool mute)
    {
        return [mute](TiManageXpic::Command& command) { command.SlaveMute = mute; };
    }

    static Request choosing(Preamble preamble)
    {
        return [preamble](TiManageXpic::Command& command) { command.Preamble = preamble; };
    }

    static Request acquiring(Mode mode, Option option)
    {
        return [mode, option](TiManageXpic::Command& command)
        {
            command.AcquireStart = true;
            command.AcquireMode = mode;
            command.AcquireOption = option;
        };
    }

    /// The members that the printed response leaves out.
    static void expectUnprinted(const TiManageXpic::Response& response, Preamble preamble, std::int32_t offset_Hz)
    {
        EXPECT_EQ(preamble, response.XpicPreamble);
        EXPECT_EQ(400, response.Xpd);
        EXPECT_EQ(offset_Hz, response.SlaveCarrierOffset);
        EXPECT_FALSE(response.SlaveSweepOngoing);
        EXPECT_EQ(1U, response.CalibrationStatus);
    }

    std::int32_t offset_Hz = channel == 1 ? 8864 : -8864;
};
