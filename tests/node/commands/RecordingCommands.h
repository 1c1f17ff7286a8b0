#pragma once

#include <functional>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "node/wording/Number.h"
#include "radio/IRlbspKelApi.h"

/// The debug commands as a recorder: logs every call with its arguments and answers what it is told to.
class RecordingCommands : public IRlbspKelApi::KelDebugCmdCallback
{
public:
    int getCtStatus(RadioChannel channel, std::string& text) override
    {
        return fill(text, fmt::format("getCtStatus({})", channel));
    }

    int getBcmModemStatus(RadioChannel channel, std::string& text) override
    {
        return fill(text, fmt::format("getBcmModemStatus({})", channel));
    }

    int getPpsCalibrationStatus(RadioChannel channel, std::string& text) override
    {
        return fill(text, fmt::format("getPpsCalibrationStatus({})", channel));
    }

    int getPpsHopLengthTime(RadioChannel channel, std::string& text) override
    {
        return fill(text, fmt::format("getPpsHopLengthTime({})", channel));
    }

    int calibratePps(RadioChannel channel, int mode, unsigned short value) override
    {
        return answer(fmt::format("calibratePps({}, {}, {})", channel, mode, value));
    }

    int setPpsSource(RadioChannel channel, int source, int parameter) override
    {
        return answer(fmt::format("setPpsSource({}, {}, {})", channel, source, parameter));
    }

    int setPpsOutputMode(RadioChannel channel, int mode) override
    {
        return answer(fmt::format("setPpsOutputMode({}, {})", channel, mode));
    }

    int startDpd(RadioChannel channel) override
    {
        return answer(fmt::format("startDpd({})", channel));
    }

    int stopDpd(RadioChannel channel) override
    {
        return answer(fmt::format("stopDpd({})", channel));
    }

    int setDpdCoefficients(RadioChannel channel, DpdCoeffs written) override
    {
        return answer(fmt::format("setDpdCoefficients({}, {})", channel, node::wording::printBytes(written.bytes)));
    }

    int getDpdCoefficients(RadioChannel channel, DpdCoeffs* read) override
    {
        *read = coefficients;
        return answer(fmt::format("getDpdCoefficients({})", channel));
    }

    int setXpicSlaveMute(RadioChannel channel, unsigned char mute) override
    {
        return answer(fmt::format("setXpicSlaveMute({}, {})", channel, mute));
    }

    int xpicAcquireStart(RadioChannel channel, unsigned char acquireMode, unsigned char acquireOption) override
    {
        return answer(fmt::format("xpicAcquireStart({}, {}, {})", channel, acquireMode, acquireOption));
    }

    int getXpicPreamble(RadioChannel channel, unsigned char* read) override
    {
        *read = preamble;
        return answer(fmt::format("getXpicPreamble({})", channel));
    }

    int setXpicPreamble(RadioChannel channel, unsigned char written) override
    {
        return answer(fmt::format("setXpicPreamble({}, {})", channel, written));
    }

    int getXpicStatus(RadioChannel channel, std::string& text) override
    {
        return fill(text, fmt::format("getXpicStatus({})", channel));
    }

    std::vector<std::string> calls;
    int result = 0;
    std::string report = "the report\n";
    unsigned char preamble = 255;
    DpdCoeffs coefficients{{0x00, 0x01, 0x7F, 0x80, 0xFF}};
    std::function<void()> duringCall = [] {};

private:
    int answer(const std::string& call)
    {
        calls.push_back(call);
        duringCall();
        return result;
    }

    int fill(std::string& text, const std::string& call)
    {
        text = report;
        return answer(call);
    }
};
