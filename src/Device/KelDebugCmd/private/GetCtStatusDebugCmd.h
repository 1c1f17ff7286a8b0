#pragma once

#include <string>

#include "radio/ITiManageRadioChannelNearEnd.h"
#include "radio/RadioChannel.h"
#include "trace/VemTrace.h"

namespace kel::device::kelDebugCmd
{

/// Composes the carrier-termination ("CT") report of a radio channel.
///
/// The object keeps no state between calls; concurrent calls are as safe as the services that it queries.
class GetCtStatusDebugCmd
{
public:
    /// @param radioChannelNearEnd  borrowed; outlives the object
    explicit GetCtStatusDebugCmd(ITiManageRadioChannelNearEnd& radioChannelNearEnd);
    GetCtStatusDebugCmd(const GetCtStatusDebugCmd&) = delete;
    GetCtStatusDebugCmd& operator=(const GetCtStatusDebugCmd&) = delete;
    virtual ~GetCtStatusDebugCmd();

    /// Replaces `report` by the report of `channel`, or by "Data could not be retrieved!" and a trace message when
    /// one of the three queries fails. Only the standard library's own failures are thrown; `report` is then as before.
    void get(RadioChannel channel, std::string& report);

    // Labels of the report, each padded to the column of the values.
    static const std::string TxActualStatusName;
    static const std::string RadioChannelStatusName;
    static const std::string TxModulationAndCodeStringName;
    static const std::string RxModulationAndCodeStringName;
    static const std::string ActualRfInputPowerName;
    static const std::string ReportedRfOutputPowerName;
    static const std::string MseName;
    static const std::string SelectedTxFrequencyName;
    static const std::string SelectedRxFrequencyName;
    static const std::string XpicIsStartedName;
    static const std::string ActualXpiName;
    static const std::string XpicStateName;
    static const std::string MinTxFrequencyName;
    static const std::string MaxTxFrequencyName;
    static const std::string MinRxFrequencyName;
    static const std::string MaxRxFrequencyName;
    static const std::string FrequencyStepSizeName;
    static const std::string AvailableMinOutputPowerName;
    static const std::string AvailableMaxOutputPowerName;
    static const std::string RadioChannelId;
    static const std::string RadioFrameIdName;
    static const std::string MinModulationAndCodeStringName;
    static const std::string MaxModulationAndCodeStringName;
    // The Selected pair once more. Both are kept; the report uses the Selected one.
    static const std::string TxFrequencyName;
    static const std::string RxFrequencyName;

private:
    ITiManageRadioChannelNearEnd& m_radioChannelNearEnd;

    static VemTrace trace_;
};

} // namespace kel::device::kelDebugCmd
