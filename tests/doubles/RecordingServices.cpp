#include "doubles/RecordingServices.h"

#include <cstring>
#include <utility>

#include "doubles/CallLog.h"
#include "doubles/LookAt.h"

IRlbspKelApi::~IRlbspKelApi() = default;
IRlbspKelApi::KelDebugCmdCallback::~KelDebugCmdCallback() = default;
IDpdControllerSplit::~IDpdControllerSplit() = default;
ITiGetDspModemStatus::~ITiGetDspModemStatus() = default;
ITiManageRadioChannelNearEnd::~ITiManageRadioChannelNearEnd() = default;

namespace doubles
{

namespace
{

std::string words(const DspModemStatus& status)
{
    std::string text = std::to_string(status.request);
    for (const std::uint32_t word : status.content)
    {
        text += " " + std::to_string(word);
    }
    return text;
}

} // namespace

RecordingDpdController::RecordingDpdController(std::string name) : m_name(std::move(name))
{
}

EDPDResult RecordingDpdController::start(std::uint32_t parameter)
{
    calls().push_back(m_name + ".start(" + std::to_string(parameter) + ")");
    return result;
}

EDPDResult RecordingDpdController::stop()
{
    calls().push_back(m_name + ".stop()");
    return result;
}

std::uint32_t RecordingDpdController::getStartParameter()
{
    calls().push_back(m_name + ".getStartParameter()");
    return startParameter;
}

EDPDResult RecordingDpdController::getCoeffs(DpdCoeffs* target)
{
    calls().push_back(m_name + ".getCoeffs()");
    *target = coefficients;
    return result;
}

EDPDResult RecordingDpdController::setCoeffs(DpdCoeffs newCoefficients)
{
    lookAt(newCoefficients);
    calls().push_back(m_name + ".setCoeffs(" + hex(newCoefficients) + ")");
    return result;
}

void RecordingBoardSupport::installDebugCmdCallback(KelDebugCmdCallback* callback)
{
    calls().push_back("IRlbspKelApi.installDebugCmdCallback()");
    installed = callback;
}

DspModemStatusResult RecordingModemStatus::getDspModemStatus(RadioChannel channel, DspModemStatus* status)
{
    lookAt(*status);
    calls().push_back("ITiGetDspModemStatus.getDspModemStatus(" + std::to_string(channel) + ", " + words(*status) +
                      ")");
    *status = filled;
    return result;
}

std::string RecordingModemStatus::toString(DspModemStatus status)
{
    lookAt(status);
    calls().push_back("ITiGetDspModemStatus.toString(" + words(status) + ")");
    return text;
}

RadioChannelInfoResult RecordingNearEnd::getRadioChannelInfo(const RadioChannelInfoRequest& request,
                                                             RadioChannelInfo* target)
{
    lookAt(request);
    calls().push_back("ITiManageRadioChannelNearEnd.getRadioChannelInfo(" + std::to_string(request.radioChannel) + ")");
    static_assert(sizeof request == sizeof requestBytes);
    std::memcpy(requestBytes.data(), &request, requestBytes.size());
    received = *target;
    *target = info;
    return result;
}

std::string hex(const DpdCoeffs& coefficients)
{
    constexpr const char* digits = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : coefficients.bytes)
    {
        text += digits[byte / 16];
        text += digits[byte % 16];
    }
    return text;
}

} // namespace doubles
