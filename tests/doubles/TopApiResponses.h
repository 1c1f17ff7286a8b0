#pragma once

#include "kel_top_api/CriCalibrateDspPps.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/CriSetOutputModeDspPps.h"
#include "kel_top_api/CriSetSourceDspPps.h"
#include "kel_top_api/TiManageXpic.h"

namespace doubles
{

/// A response of each call of the top-level API.
struct TopApiResponses
{
    kel_top_api::TiManageXpic::Response manageXpic;
    kel_top_api::StandardResponse calibrateDspPps;
    kel_top_api::StandardResponse setSourceDspPps;
    kel_top_api::StandardResponse setOutputModeDspPps;
    kel_top_api::CriGetCalibrationStatusDspPps::Response calibrationStatusDspPps;
    kel_top_api::CriGetHopLengthTimeDspPps::Response hopLengthTimeDspPps;
    kel_top_api::CriGetRadioChannelStatus::Response radioChannelStatus;
    kel_top_api::CriGetRadioChannelCapability::Response radioChannelCapability;
};

/// Makes a response fail (or succeed) with that code and text.
inline void answer(kel_top_api::BaseResponse& response, std::int32_t resultCode, const std::string& resultText)
{
    response.resultCode = resultCode;
    response.resultText = resultText;
}

} // namespace doubles
