#pragma once

#include <fmt/format.h>

#include "kel_top_api/BaseResponse.h"
#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/StandardResponse.h"
#include "kel_top_api/TiManageXpic.h"
#include "radio/ITiManageRadioChannelNearEnd.h"
#include "radio/RadioChannel.h"

/// The texts of reports and records as fmt writes them into a buffer that is used again, with names from a constant
/// table. What the module's texts cost is measured in these.
///
/// Each function replaces what the buffer holds.
namespace bench::floor
{

using Buffer = fmt::memory_buffer;

void ctReport(Buffer& buffer, RadioChannel channel, const kel_top_api::CriGetRadioChannelStatus::Response& status,
              const kel_top_api::CriGetRadioChannelCapability::Response& capability, const RadioChannelInfo& info);
void xpicStatusReport(Buffer& buffer, const kel_top_api::TiManageXpic::Response& response);
void ppsCalibrationReport(Buffer& buffer, const kel_top_api::CriGetCalibrationStatusDspPps::Response& response);
void ppsHopLengthReport(Buffer& buffer, const kel_top_api::CriGetHopLengthTimeDspPps::Response& response);

/// What printResponse() answers.
void printed(Buffer& buffer, const kel_top_api::BaseResponse& response);
void printed(Buffer& buffer, const kel_top_api::StandardResponse& response);
void printed(Buffer& buffer, const kel_top_api::TiManageXpic::Response& response);
void printed(Buffer& buffer, const kel_top_api::CriGetRadioChannelStatus::Response& response);
void printed(Buffer& buffer, const kel_top_api::CriGetRadioChannelCapability::Response& response);

} // namespace bench::floor
