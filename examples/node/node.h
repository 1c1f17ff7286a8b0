#pragma once

#include <cstdint>
#include <string>

#include "radio/IDpdControllerSplit.h"
#include "radio/IRlbspKelApi.h"
#include "radio/ITiGetDspModemStatus.h"
#include "radio/ITiManageRadioChannelNearEnd.h"

// A node that is as small as can be: it stands where yours stands.

class BoardSupport : public IRlbspKelApi
{
public:
    void installDebugCmdCallback(KelDebugCmdCallback* callback) override
    {
        commands = callback;
    }

    KelDebugCmdCallback* commands = nullptr;
};

class DpdController : public IDpdControllerSplit
{
public:
    EDPDResult start(std::uint32_t /*startParameter*/) override
    {
        return EDPDResult::Success;
    }

    EDPDResult stop() override
    {
        return EDPDResult::Success;
    }

    std::uint32_t getStartParameter() override
    {
        return 1;
    }

    EDPDResult getCoeffs(DpdCoeffs* target) override
    {
        *target = coefficients;
        return EDPDResult::Success;
    }

    EDPDResult setCoeffs(DpdCoeffs newCoefficients) override
    {
        coefficients = newCoefficients;
        return EDPDResult::Success;
    }

    DpdCoeffs coefficients;
};

class NearEnd : public ITiManageRadioChannelNearEnd
{
public:
    RadioChannelInfoResult getRadioChannelInfo(const RadioChannelInfoRequest& request, RadioChannelInfo* info) override
    {
        info->radioChannelId = static_cast<std::int32_t>(request.radioChannel);
        return {};
    }
};

class ModemStatus : public ITiGetDspModemStatus
{
public:
    DspModemStatusResult getDspModemStatus(RadioChannel /*channel*/, DspModemStatus* /*status*/) override
    {
        return {};
    }

    std::string toString(DspModemStatus /*status*/) override
    {
        return "Modem status\n";
    }
};
