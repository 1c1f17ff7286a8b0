#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "kel_top_api/TiManageXpic.h"
#include "node/services/RecordText.h"
#include "node/services/ServiceTest.h"

/// Sends XPIC requests to a channel of the link.
class XpicServiceTest : public ServiceTest
{
protected:
    using TiManageXpic = kel_top_api::TiManageXpic;
    using Mode = TiManageXpic::AcquireModeType;
    using Option = TiManageXpic::AcquireOptionType;
    using Preamble = TiManageXpic::PreambleType;
    using Response = TiManageXpic::Response;
    using Request = std::function<void(TiManageXpic::Command&)>;

    /// Sends a request to a channel.
    static Response send(RadioChannel to, const Request& request)
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

    /// The answer of an acquired canceller in clear sky, with its own carrier and its own transmitter.
    static Response acquired(RadioChannel of)
    {
        Response response;
        response.RadioChannelID = of;
        response.XpicControlBarOn = true;
        response.XpicEnable = true;
        response.AverageI = 10;
        response.TxMessage = "Preamble 0";
        response.RxMessage = "Preamble 0";
        response.XpicLockStateMachine = true;
        response.XpicState = "Locked";
        response.SlaveExternalAgc = 230;
        response.XpicCableConnected = true;
        response.XpicTxEnable = true;
        response.XpicEnableExt = TiManageXpic::XpicEnableExtType::Enable_A;
        response.Xpd = 400;
        response.SlaveCarrierOffset = of == 1 ? Carrier_Hz : -Carrier_Hz;
        response.CalibrationStatus = 1;
        return response;
    }

    /// The same of one that is not acquired and stands somewhere.
    static Response notAcquired(RadioChannel of, const std::string& state, std::uint8_t calibration,
                                std::int32_t position_Hz)
    {
        Response response = acquired(of);
        response.XpicControlBarOn = false;
        response.AverageI = 0;
        response.XpicLockStateMachine = false;
        response.XpicState = state;
        response.CalibrationStatus = calibration;
        response.SlaveCarrierOffset = position_Hz;
        return response;
    }

    /// The same of one that sweeps.
    static Response sweeping(RadioChannel of, std::int32_t position_Hz = SweepBegin_Hz)
    {
        Response response = notAcquired(of, "Acquiring", 2, position_Hz);
        response.SlaveSweepOngoing = true;
        return response;
    }

    static void expectWhole(const Response& expected, const Response& response)
    {
        EXPECT_EQ(wholeOf(expected), wholeOf(response));
    }

    /// Half a ppm of 17.7275 GHz.
    static constexpr std::int32_t Carrier_Hz = 8864;
    static constexpr std::int32_t SweepBegin_Hz = -100'000;

    std::int32_t carrier_Hz = channel == 1 ? Carrier_Hz : -Carrier_Hz;
};
