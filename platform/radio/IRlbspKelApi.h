#pragma once

#include <string>

#include "framework/IInterface.h"
#include "radio/IDpdControllerSplit.h"
#include "radio/RadioChannel.h"

/// The radio-link board-support interface, as far as the debug commands need it. Broker key "IRlbspKelApi".
class IRlbspKelApi : public virtual IInterface
{
public:
    class KelDebugCmdCallback;

    ~IRlbspKelApi() override;

    /// Makes `callback` the receiver of the debug commands. The callback is borrowed and replaces an earlier one.
    virtual void installDebugCmdCallback(KelDebugCmdCallback* callback) = 0;
};

/// What the node's debug command line calls, one operation per typed command, each for one radio channel (1 or 2).
///
/// Every operation answers exactly 0 when the command succeeded and 1 when it failed. A report replaces the
/// caller's text. The order of the virtual operations is part of the binary contract with the command line.
class IRlbspKelApi::KelDebugCmdCallback
{
public:
    KelDebugCmdCallback() = default;
    KelDebugCmdCallback(const KelDebugCmdCallback&) = delete;
    KelDebugCmdCallback& operator=(const KelDebugCmdCallback&) = delete;
    virtual ~KelDebugCmdCallback();

    /// Reports the carrier termination: how it is, what it can do, who it is. Answers 0 in every case: the
    /// report itself tells of a failure.
    virtual int getCtStatus(RadioChannel channel, std::string& report) = 0;
    /// Reports how the modem is.
    virtual int getBcmModemStatus(RadioChannel channel, std::string& report) = 0;
    /// Reports how the calibration of the pulse-per-second (PPS) output stands.
    virtual int getPpsCalibrationStatus(RadioChannel channel, std::string& report) = 0;
    /// Reports the time over the hop, in ns.
    virtual int getPpsHopLengthTime(RadioChannel channel, std::string& report) = 0;
    /// Begins a calibration of the PPS output.
    /// @param mode   0 to 3; others fail
    /// @param value  any; what it means depends on the mode
    virtual int calibratePps(RadioChannel channel, int mode, unsigned short value) = 0;
    /// Chooses where the PPS output has its pulse from.
    /// @param source     0 to 2; others fail
    /// @param parameter  any; what it means depends on the source
    virtual int setPpsSource(RadioChannel channel, int source, int parameter) = 0;
    /// Chooses what the PPS output puts out.
    /// @param mode  0 to 2; others fail
    virtual int setPpsOutputMode(RadioChannel channel, int mode) = 0;
    /// Starts the digital predistortion (DPD). Fails where the channel has no controller, as the next three do.
    virtual int startDpd(RadioChannel channel) = 0;
    /// Stops the predistortion.
    virtual int stopDpd(RadioChannel channel) = 0;
    /// Writes the predistortion's coefficients.
    virtual int setDpdCoefficients(RadioChannel channel, DpdCoeffs coefficients) = 0;
    /// Reads the predistortion's coefficients.
    /// @param coefficients  filled in; not null
    virtual int getDpdCoefficients(RadioChannel channel, DpdCoeffs* coefficients) = 0;
    /// Mutes or unmutes the slave of the cross-polarisation interference canceller (XPIC).
    /// @param mute  0 unmutes, all others mute
    virtual int setXpicSlaveMute(RadioChannel channel, unsigned char mute) = 0;
    /// Begins an acquisition of the canceller.
    /// @param acquireMode    0 to 2; others are left for the API to answer
    /// @param acquireOption  0 to 3; others are left for the API to answer
    virtual int xpicAcquireStart(RadioChannel channel, unsigned char acquireMode, unsigned char acquireOption) = 0;
    /// Reads the canceller's preamble.
    /// @param preamble  set to 0 to 3, or to 255 for any other preamble; not null; left alone on failure
    virtual int getXpicPreamble(RadioChannel channel, unsigned char* preamble) = 0;
    /// Chooses the canceller's preamble.
    /// @param preamble  0 to 3; others are left for the API to answer
    virtual int setXpicPreamble(RadioChannel channel, unsigned char preamble) = 0;
    /// Reports how the canceller is. On failure the report is the API's own text.
    virtual int getXpicStatus(RadioChannel channel, std::string& report) = 0;
};
