#pragma once

#include <string>
#include <tuple>
#include <vector>

#include "radio/IRlbspKelApi.h"

/// What the caller of an operation gets back besides its result.
struct Output
{
    std::string report = "what was there before";
    unsigned char preamble = 99;
    DpdCoeffs coefficients;

    bool operator==(const Output& other) const
    {
        return std::tie(report, preamble, coefficients.bytes) ==
               std::tie(other.report, other.preamble, other.coefficients.bytes);
    }
};

/// One of the sixteen operations, with arguments that the module accepts, on channel 1.
template <typename Commands>
struct Operation
{
    std::string name;
    int (*run)(Commands& to, Output& output);
};

/// The sixteen operations, in the order of the callback interface.
template <typename Commands>
std::vector<Operation<Commands>> operations()
{
    return {
        {"getCtStatus", [](Commands& to, Output& output) { return to.getCtStatus(1, output.report); }},
        {"getBcmModemStatus", [](Commands& to, Output& output) { return to.getBcmModemStatus(1, output.report); }},
        {"getPpsCalibrationStatus",
         [](Commands& to, Output& output) { return to.getPpsCalibrationStatus(1, output.report); }},
        {"getPpsHopLengthTime", [](Commands& to, Output& output) { return to.getPpsHopLengthTime(1, output.report); }},
        {"calibratePps", [](Commands& to, Output&) { return to.calibratePps(1, 3, 65535); }},
        {"setPpsSource", [](Commands& to, Output&) { return to.setPpsSource(1, 2, -7); }},
        {"setPpsOutputMode", [](Commands& to, Output&) { return to.setPpsOutputMode(1, 1); }},
        {"startDpd", [](Commands& to, Output&) { return to.startDpd(1); }},
        {"stopDpd", [](Commands& to, Output&) { return to.stopDpd(1); }},
        {"setDpdCoefficients",
         [](Commands& to, Output&) {
             return to.setDpdCoefficients(1, {{1, 2, 3}});
         }},
        {"getDpdCoefficients",
         [](Commands& to, Output& output) { return to.getDpdCoefficients(1, &output.coefficients); }},
        {"setXpicSlaveMute", [](Commands& to, Output&) { return to.setXpicSlaveMute(1, 1); }},
        {"xpicAcquireStart", [](Commands& to, Output&) { return to.xpicAcquireStart(1, 2, 3); }},
        {"getXpicPreamble", [](Commands& to, Output& output) { return to.getXpicPreamble(1, &output.preamble); }},
        {"setXpicPreamble", [](Commands& to, Output&) { return to.setXpicPreamble(1, 3); }},
        {"getXpicStatus", [](Commands& to, Output& output) { return to.getXpicStatus(1, output.report); }},
    };
}
