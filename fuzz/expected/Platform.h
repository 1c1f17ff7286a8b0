#pragma once

#include <array>
#include <string>
#include <vector>

#include "doubles/CallLog.h"
#include "doubles/RecordingServices.h"
#include "doubles/RecordingTopApi.h"
#include "doubles/RecordingTrace.h"

namespace expected
{

/// What the module has around it when an operation is called.
struct Platform
{
    const doubles::TopApiResponses& api;
    const doubles::RecordingModemStatus& modemStatus;
    const doubles::RecordingNearEnd& nearEnd;
    std::array<const doubles::RecordingDpdController*, 2> dpd; ///< null where the module found none
    bool commandsTraced;                                       ///< the commands' trace channel is active
    bool ctStatusTraced;                                       ///< that of the carrier-termination report is
};

/// All that an operation can leave behind.
struct Outcome
{
    int result = 0;
    std::string report;
    unsigned char preamble = 0;
    DpdCoeffs coefficients;
    doubles::CallLog calls;
    std::vector<doubles::TraceMessage> messages;
    std::string discarded; ///< of the trace
};

/// The whole report of a query that failed.
inline constexpr auto NoData = "Data could not be retrieved!";

} // namespace expected
