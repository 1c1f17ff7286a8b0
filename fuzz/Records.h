#pragma once

#include "fuzz/Input.h"
#include "kel_top_api/CriGetRadioChannelCapability.h"
#include "kel_top_api/CriGetRadioChannelStatus.h"
#include "kel_top_api/TiManageXpic.h"
#include "radio/IDpdControllerSplit.h"

/// Records of the platform as an input has them. What decides most of what is done with a record is read first.
namespace fuzz
{

/// What all responses have.
void fillOutcome(Input& input, kel_top_api::BaseResponse& response);

void fill(Input& input, kel_top_api::TiManageXpic::Response& response);
void fill(Input& input, kel_top_api::CriGetRadioChannelStatus::Response& response);
void fill(Input& input, kel_top_api::CriGetRadioChannelCapability::Response& response);
DpdCoeffs coefficientsOf(Input& input);

} // namespace fuzz
