#pragma once

#include <string>

#include "radio/IRlbspKelApi.h"

/// Debug commands that do nothing: where only their address matters.
class SilentCommands : public IRlbspKelApi::KelDebugCmdCallback
{
public:
    int getCtStatus(RadioChannel, std::string&) override
    {
        return 0;
    }
    int getBcmModemStatus(RadioChannel, std::string&) override
    {
        return 0;
    }
    int getPpsCalibrationStatus(RadioChannel, std::string&) override
    {
        return 0;
    }
    int getPpsHopLengthTime(RadioChannel, std::string&) override
    {
        return 0;
    }
    int calibratePps(RadioChannel, int, unsigned short) override
    {
        return 0;
    }
    int setPpsSource(RadioChannel, int, int) override
    {
        return 0;
    }
    int setPpsOutputMode(RadioChannel, int) override
    {
        return 0;
    }
    int startDpd(RadioChannel) override
    {
        return 0;
    }
    int stopDpd(RadioChannel) override
    {
        return 0;
    }
    int setDpdCoefficients(RadioChannel, DpdCoeffs) override
    {
        return 0;
    }
    int getDpdCoefficients(RadioChannel, DpdCoeffs*) override
    {
        return 0;
    }
    int setXpicSlaveMute(RadioChannel, unsigned char) override
    {
        return 0;
    }
    int xpicAcquireStart(RadioChannel, unsigned char, unsigned char) override
    {
        return 0;
    }
    int getXpicPreamble(RadioChannel, unsigned char*) override
    {
        return 0;
    }
    int setXpicPreamble(RadioChannel, unsigned char) override
    {
        return 0;
    }
    int getXpicStatus(RadioChannel, std::string&) override
    {
        return 0;
    }
};
