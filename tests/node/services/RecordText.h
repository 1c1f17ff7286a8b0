#pragma once

#include <string>

#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/StandardResponse.h"
#include "kel_top_api/TiManageXpic.h"
#include "node/radio/RadioLink.h"
#include "radio/IDpdControllerSplit.h"
#include "radio/ITiGetDspModemStatus.h"
#include "radio/ITiManageRadioChannelNearEnd.h"

/// Records as texts in which every member shows, also those that the platform does not print.

// Of responses: what the call is about, without the result.
std::string contentOf(const kel_top_api::StandardResponse& response);
std::string contentOf(const kel_top_api::CriGetCalibrationStatusDspPps::Response& response);
std::string contentOf(const kel_top_api::CriGetHopLengthTimeDspPps::Response& response);
std::string contentOf(kel_top_api::CriGetRadioChannelCapability::Response response);
std::string contentOf(kel_top_api::CriGetRadioChannelStatus::Response response);
std::string contentOf(kel_top_api::TiManageXpic::Response response);

std::string contentOf(const DpdCoeffs& coefficients);
std::string contentOf(const DspModemStatus& status);
std::string contentOf(const RadioChannelInfo& info);

/// A response with its result.
template <typename Response>
std::string wholeOf(const Response& response)
{
    return "resultCode: " + std::to_string(response.resultCode) + ", resultText: " + response.resultText +
           ", opaqueWord: " + std::to_string(response.opaqueWord) + ", " + contentOf(response);
}

/// The state of a link's channels, and what they measure.
std::string contentOf(const node::radio::RadioLink& link);
