#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "radio/IDpdControllerSplit.h"
#include "radio/IRlbspKelApi.h"
#include "radio/ITiGetDspModemStatus.h"
#include "radio/ITiManageRadioChannelNearEnd.h"

/// Recording doubles of the interfaces that the module is given or looks up. Each logs its calls as
/// "name.operation(arguments)" and answers what its public members say.
namespace doubles
{

class RecordingDpdController : public IDpdControllerSplit
{
public:
    explicit RecordingDpdController(std::string name);

    EDPDResult start(std::uint32_t startParameter) override;
    EDPDResult stop() override;
    std::uint32_t getStartParameter() override;
    EDPDResult getCoeffs(DpdCoeffs* target) override;
    EDPDResult setCoeffs(DpdCoeffs coefficients) override;

    EDPDResult result = EDPDResult::Success; ///< of every operation
    std::uint32_t startParameter = 0;
    DpdCoeffs coefficients; ///< what getCoeffs() writes, also when it fails

private:
    std::string m_name;
};

class RecordingBoardSupport : public IRlbspKelApi
{
public:
    void installDebugCmdCallback(KelDebugCmdCallback* callback) override;

    KelDebugCmdCallback* installed = nullptr;
};

class RecordingModemStatus : public ITiGetDspModemStatus
{
public:
    DspModemStatusResult getDspModemStatus(RadioChannel channel, DspModemStatus* status) override;
    std::string toString(DspModemStatus status) override;

    DspModemStatusResult result;
    DspModemStatus filled; ///< what the query writes into the caller's record
    std::string text;      ///< what toString() answers
};

class RecordingNearEnd : public ITiManageRadioChannelNearEnd
{
public:
    RadioChannelInfoResult getRadioChannelInfo(const RadioChannelInfoRequest& request,
                                               RadioChannelInfo* target) override;

    RadioChannelInfoResult result;
    RadioChannelInfo info; ///< what the query writes into the caller's record

    std::array<unsigned char, 88> requestBytes{}; ///< the last request, byte by byte
    RadioChannelInfo received;                    ///< the caller's record, as it came in
};

/// An interface of a type that nobody looks for.
class OtherInterface : public virtual IInterface
{
};

/// 20 bytes as 40 hexadecimal digits.
std::string hex(const DpdCoeffs& coefficients);

} // namespace doubles
