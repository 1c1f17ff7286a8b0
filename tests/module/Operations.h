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

/// One of the operations, with arguments that the module accepts.
template <typename Commands>
struct Operation
{
    std::string name;
    int (*runOn)(Commands& to, RadioChannel channel, Output& output);

    int run(Commands& to, Output& output) const
    {
        return runOn(to, 1, output);
    }
};

/// The operations, all of them, in the order of the callback interface.
template <typename Commands>
std::vector<Operation<Commands>> operations()
{
    return {
        {"getCtStatus",
         [](Commands& to, RadioChannel channel, Output& output) { return to.getCtStatus(channel, output.report); }},
        {"getBcmModemStatus", [](Commands& to, RadioChannel channel, Output& output)
         { return to.getBcmModemStatus(channel, output.report); }},
        {"getPpsCalibrationStatus", [](Commands& to, RadioChannel channel, Output& output)
         { return to.getPpsCalibrationStatus(channel, output.report); }},
        {"getPpsHopLengthTime", [](Commands& to, RadioChannel channel, Output& output)
         { return to.getPpsHopLengthTime(channel, output.report); }},
        {"calibratePps",
         [](Commands& to, RadioChannel channel, Output&) { return to.calibratePps(channel, 3, 65535); }},
        {"setPpsSource", [](Commands& to, RadioChannel channel, Output&) { return to.setPpsSource(channel, 2, -7); }},
        {"setPpsOutputMode",
         [](Commands& to, RadioChannel channel, Output&) { return to.setPpsOutputMode(channel, 1); }},
        {"startDpd", [](Commands& to, RadioChannel channel, Output&) { return to.startDpd(channel); }},
        {"stopDpd", [](Commands& to, RadioChannel channel, Output&) { return to.stopDpd(channel); }},
        {"setDpdCoefficients",
         [](Commands& to, RadioChannel channel, Output&) {
             return to.setDpdCoefficients(channel, {{1, 2, 3}});
         }},
        {"getDpdCoefficients", [](Commands& to, RadioChannel channel, Output& output)
         { return to.getDpdCoefficients(channel, &output.coefficients); }},
        {"setXpicSlaveMute",
         [](Commands& to, RadioChannel channel, Output&) { return to.setXpicSlaveMute(channel, 1); }},
        {"xpicAcquireStart",
         [](Commands& to, RadioChannel channel, Output&) { return to.xpicAcquireStart(channel, 2, 3); }},
        {"getXpicPreamble", [](Commands& to, RadioChannel channel, Output& output)
         { return to.getXpicPreamble(channel, &output.preamble); }},
        {"setXpicPreamble", [](Commands& to, RadioChannel channel, Output&) { return to.setXpicPreamble(channel, 3); }},
        {"getXpicStatus",
         [](Commands& to, RadioChannel channel, Output& output) { return to.getXpicStatus(channel, output.report); }},
    };
}
