#include "bench/Platform.h"

#include <mutex>

namespace bench
{

namespace
{

doubles::TopApiResponses inService()
{
    doubles::TopApiResponses api;
    api.manageXpic.Xpd = 253;
    api.manageXpic.SlaveCarrierOffset = -8864;
    api.manageXpic.CalibrationStatus = 1;
    api.manageXpic.TxMessage = "none";
    api.manageXpic.RxMessage = "none";
    api.manageXpic.XpicState = "Locked";
    api.calibrationStatusDspPps.calibrationStatus = 3;
    api.hopLengthTimeDspPps.hopLengthTime = 16678;
    api.radioChannelStatus.TXActualStatus = "On";
    api.radioChannelStatus.RadioChannelStatus = "Up";
    api.radioChannelStatus.ActualModulation = "4096QAM";
    api.radioChannelStatus.ActualTxModulation = "4096QAM";
    api.radioChannelStatus.ActualRxModulation = "4096QAM";
    api.radioChannelStatus.ActualRFInputPower = -4302;
    api.radioChannelStatus.ReportedRFOutputPower = 1800;
    api.radioChannelStatus.ActualSNIR = 4391;
    api.radioChannelStatus.TxFrequency = 17727500;
    api.radioChannelStatus.RxFrequency = 18737500;
    api.radioChannelStatus.KelState = "Enabled";
    api.radioChannelStatus.XpicIsStarted = true;
    api.radioChannelStatus.ActualXpi = 400;
    api.radioChannelStatus.XpicState = "Locked";
    api.radioChannelCapability.AvailableMinRFOutputPower = -200;
    api.radioChannelCapability.MinTXFrequency = 17727500;
    api.radioChannelCapability.MaxTXFrequency = 18662500;
    api.radioChannelCapability.MinRXFrequency = 18737500;
    api.radioChannelCapability.MaxRXFrequency = 19672500;
    api.radioChannelCapability.FrequencyStepSize = 250;
    api.radioChannelCapability.DuplexType = "FDD";
    api.radioChannelCapability.AvailableRSECs = {1, 3, 5};
    return api;
}

std::mutex& mutex()
{
    static std::mutex mutex;
    return mutex;
}

/// A copy, as every service hands it out.
template <typename Value>
Value copyOf(const Value& value)
{
    const std::lock_guard lock(mutex());
    return value;
}

} // namespace

doubles::TopApiResponses& topApi()
{
    static doubles::TopApiResponses responses = inService();
    return responses;
}

EDPDResult DpdController::start(std::uint32_t /*startParameter*/)
{
    return copyOf(result);
}

EDPDResult DpdController::stop()
{
    return copyOf(result);
}

std::uint32_t DpdController::getStartParameter()
{
    return copyOf(m_startParameter);
}

EDPDResult DpdController::getCoeffs(DpdCoeffs* target)
{
    const std::lock_guard lock(mutex());
    *target = m_coefficients;
    return result;
}

EDPDResult DpdController::setCoeffs(DpdCoeffs coefficients)
{
    const std::lock_guard lock(mutex());
    m_coefficients = coefficients;
    return result;
}

void BoardSupport::installDebugCmdCallback(KelDebugCmdCallback* callback)
{
    installed = callback;
}

DspModemStatusResult ModemStatus::getDspModemStatus(RadioChannel /*channel*/, DspModemStatus* /*status*/)
{
    return copyOf(result);
}

std::string ModemStatus::toString(DspModemStatus /*status*/)
{
    return "Modem status of radio channel 1\n";
}

RadioChannelInfoResult NearEnd::getRadioChannelInfo(const RadioChannelInfoRequest& request, RadioChannelInfo* target)
{
    const std::lock_guard lock(mutex());
    info.radioChannelId = static_cast<std::int32_t>(request.radioChannel);
    *target = info;
    return result;
}

} // namespace bench

IRlbspKelApi::~IRlbspKelApi() = default;
IRlbspKelApi::KelDebugCmdCallback::~KelDebugCmdCallback() = default;
IDpdControllerSplit::~IDpdControllerSplit() = default;
ITiGetDspModemStatus::~ITiGetDspModemStatus() = default;
ITiManageRadioChannelNearEnd::~ITiManageRadioChannelNearEnd() = default;

namespace kel_top_api
{

using bench::topApi;

TiManageXpic::Response tiManageXpic(const TiManageXpic::Command& /*command*/)
{
    return bench::copyOf(topApi().manageXpic);
}

StandardResponse criCalibrateDspPps(const CriCalibrateDspPps::Command& /*command*/)
{
    return bench::copyOf(topApi().calibrateDspPps);
}

StandardResponse criSetSourceDspPps(const CriSetSourceDspPps::Command& /*command*/)
{
    return bench::copyOf(topApi().setSourceDspPps);
}

StandardResponse criSetOutputModeDspPps(const CriSetOutputModeDspPps::Command& /*command*/)
{
    return bench::copyOf(topApi().setOutputModeDspPps);
}

CriGetCalibrationStatusDspPps::Response
criGetCalibrationStatusDspPps(const CriGetCalibrationStatusDspPps::Command& /*command*/)
{
    return bench::copyOf(topApi().calibrationStatusDspPps);
}

CriGetHopLengthTimeDspPps::Response criGetHopLengthTimeDspPps(const CriGetHopLengthTimeDspPps::Command& /*command*/)
{
    return bench::copyOf(topApi().hopLengthTimeDspPps);
}

CriGetRadioChannelStatus::Response criGetRadioChannelStatus(const CriGetRadioChannelStatus::Command& /*command*/)
{
    return bench::copyOf(topApi().radioChannelStatus);
}

CriGetRadioChannelCapability::Response
criGetRadioChannelCapability(const CriGetRadioChannelCapability::Command& /*command*/)
{
    return bench::copyOf(topApi().radioChannelCapability);
}

} // namespace kel_top_api
