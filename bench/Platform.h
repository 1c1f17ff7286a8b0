#pragma once

#include <cstdint>
#include <string>

#include "doubles/TopApiResponses.h"
#include "radio/IDpdControllerSplit.h"
#include "radio/IRlbspKelApi.h"
#include "radio/ITiGetDspModemStatus.h"
#include "radio/ITiManageRadioChannelNearEnd.h"

/// A platform whose services cost as little as those that any thread may call: each takes a lock, and answers with a
/// copy of a prepared record. What the module adds is then as large a part of a command as on any node.
///
/// The framework and the trace are those of the simulated node.
namespace bench
{

/// What the top-level API answers: records as a node in service has them.
doubles::TopApiResponses& topApi();

class DpdController : public IDpdControllerSplit
{
public:
    EDPDResult start(std::uint32_t startParameter) override;
    EDPDResult stop() override;
    std::uint32_t getStartParameter() override;
    EDPDResult getCoeffs(DpdCoeffs* target) override;
    EDPDResult setCoeffs(DpdCoeffs coefficients) override;

    EDPDResult result = EDPDResult::Success; ///< of every operation

private:
    std::uint32_t m_startParameter = 1;
    DpdCoeffs m_coefficients;
};

class BoardSupport : public IRlbspKelApi
{
public:
    void installDebugCmdCallback(KelDebugCmdCallback* callback) override;

    KelDebugCmdCallback* installed = nullptr;
};

class ModemStatus : public ITiGetDspModemStatus
{
public:
    DspModemStatusResult getDspModemStatus(RadioChannel channel, DspModemStatus* status) override;
    std::string toString(DspModemStatus status) override;

    DspModemStatusResult result;
};

class NearEnd : public ITiManageRadioChannelNearEnd
{
public:
    RadioChannelInfoResult getRadioChannelInfo(const RadioChannelInfoRequest& request,
                                               RadioChannelInfo* target) override;

    RadioChannelInfoResult result;
    RadioChannelInfo info;
};

} // namespace bench
