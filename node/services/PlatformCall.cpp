#include "node/services/PlatformCall.h"

#include <algorithm>
#include <iterator>

namespace node::services
{

namespace
{

using enum AnswerKind;

constexpr PlatformCall Calls[] = {
    {"criCalibrateDspPps", TopApiResult, true},
    {"criGetCalibrationStatusDspPps", TopApiResult, true},
    {"criGetHopLengthTimeDspPps", TopApiResult, true},
    {"criGetRadioChannelCapability", TopApiResult, true},
    {"criGetRadioChannelStatus", TopApiResult, true},
    {"criSetOutputModeDspPps", TopApiResult, true},
    {"criSetSourceDspPps", TopApiResult, true},
    {"tiManageXpic", TopApiResult, true},
    {"IDpdControllerSplit.start", PlatformCode, true},
    {"IDpdControllerSplit.stop", PlatformCode, true},
    {"IDpdControllerSplit.getStartParameter", Number, true},
    {"IDpdControllerSplit.getCoeffs", PlatformCode, true},
    {"IDpdControllerSplit.setCoeffs", PlatformCode, true},
    {"ITiGetDspModemStatus.getDspModemStatus", PlatformResult, true},
    {"ITiGetDspModemStatus.toString", Text, true},
    {"ITiManageRadioChannelNearEnd.getRadioChannelInfo", PlatformResult, true},
    {"IRlbspKelApi.installDebugCmdCallback", Nothing, false},
    {"CModuleManager.RegisterModule", Nothing, false},
};

} // namespace

bool PlatformCall::answersCode() const
{
    return kind != Text && kind != Nothing;
}

bool PlatformCall::answersText() const
{
    return kind == TopApiResult || kind == PlatformResult || kind == Text;
}

bool PlatformCall::fails(std::int32_t code) const
{
    switch (kind)
    {
    case TopApiResult:
        return code >= TopApiRefusal;
    case PlatformResult:
    case PlatformCode:
        return code >= PlatformRefusal;
    case Number:
    case Text:
    case Nothing:
        break;
    }
    return false;
}

std::span<const PlatformCall> platformCalls()
{
    return Calls;
}

const PlatformCall* findPlatformCall(std::string_view name)
{
    const auto* const call =
        std::find_if(std::begin(Calls), std::end(Calls), [&](const PlatformCall& row) { return row.name == name; });
    return call == std::end(Calls) ? nullptr : call;
}

} // namespace node::services
