#include <algorithm>

#include "node/cli/Binding.h"
#include "node/cli/Operation.h"

namespace node::cli
{

const std::vector<Operation>& operations()
{
    using Commands = IRlbspKelApi::KelDebugCmdCallback;
    static const std::vector<Operation> table = {
        makeOperation("getCtStatus", &Commands::getCtStatus, "Report status, capability and identity of a channel"),
        makeOperation("getBcmModemStatus", &Commands::getBcmModemStatus, "Report the modem's status"),
        makeOperation("getPpsCalibrationStatus", &Commands::getPpsCalibrationStatus,
                      "Report the calibration of the PPS output"),
        makeOperation("getPpsHopLengthTime", &Commands::getPpsHopLengthTime,
                      "Report the time that the signal takes, in ns"),
        makeOperation(
            "calibratePps", &Commands::calibratePps, "Calibrate the PPS output",
            {{"mode", "0 coarse, 1 fine, 2 auto, 3 manual; others fail"}, {"value", "correction in ns, for mode 3"}}),
        makeOperation("setPpsSource", &Commands::setPpsSource, "Choose the source of the PPS output",
                      {{"source", "0, 1 or 2; others fail"}, {"parameter", "parameter of the source"}}),
        makeOperation("setPpsOutputMode", &Commands::setPpsOutputMode, "Choose the mode of the PPS output",
                      {{"mode", "0, 1 or 2; others fail"}}),
        makeOperation("startDpd", &Commands::startDpd, "Start digital predistortion"),
        makeOperation("stopDpd", &Commands::stopDpd, "Stop digital predistortion"),
        makeOperation("setDpdCoefficients", &Commands::setDpdCoefficients, "Write the predistortion coefficients",
                      {{"coefficients", "in the controller's own coding"}}),
        makeOperation("getDpdCoefficients", &Commands::getDpdCoefficients, "Print the predistortion coefficients"),
        makeOperation("setXpicSlaveMute", &Commands::setXpicSlaveMute, "Mute or unmute the XPIC slave",
                      {{"mute", "0 unmutes, others mute"}}),
        makeOperation("xpicAcquireStart", &Commands::xpicAcquireStart, "Start an XPIC acquisition",
                      {{"acquireMode", "0 to 2; others are refused"}, {"acquireOption", "0 to 3; others are refused"}}),
        makeOperation("getXpicPreamble", &Commands::getXpicPreamble, "Print the XPIC preamble, 255 for an unknown one"),
        makeOperation("setXpicPreamble", &Commands::setXpicPreamble, "Choose the XPIC preamble",
                      {{"preamble", "0 to 3; others are refused"}}),
        makeOperation("getXpicStatus", &Commands::getXpicStatus, "Report the status of the XPIC"),
    };
    return table;
}

const Operation* findOperation(const std::string& name)
{
    const auto& table = operations();
    const auto row =
        std::find_if(table.begin(), table.end(), [&](const Operation& operation) { return operation.name == name; });
    return row == table.end() ? nullptr : &*row;
}

} // namespace node::cli
