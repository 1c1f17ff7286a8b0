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

    virtual int getCtStatus(RadioChannel channel, std::string& report) = 0;
    virtual int getBcmModemStatus(RadioChannel channel, std::string& report) = 0;
    virtual int getPpsCalibrationStatus(RadioChannel channel, std::string& report) = 0;
    virtual int getPpsHopLengthTime(RadioChannel channel, std::string& report) = 0;
    virtual int calibratePps(RadioChannel channel, int mode, unsigned short value) = 0;
    virtual int setPpsSource(RadioChannel channel, int source, int parameter) = 0;
    virtual int setPpsOutputMode(RadioChannel channel, int mode) = 0;
    virtual int startDpd(RadioChannel channel) = 0;
    virtual int stopDpd(RadioChannel channel) = 0;
    virtual int setDpdCoefficients(RadioChannel channel, DpdCoeffs coefficients) = 0;
    virtual int getDpdCoefficients(RadioChannel channel, DpdCoeffs* coefficients) = 0;
    virtual int setXpicSlaveMute(RadioChannel channel, unsigned char mute) = 0;
    virtual int xpicAcquireStart(RadioChannel channel, unsigned char acquireMode, unsigned char acquireOption) = 0;
    virtual int getXpicPreamble(RadioChannel channel, unsigned char* preamble) = 0;
    virtual int setXpicPreamble(RadioChannel channel, unsigned char preamble) = 0;
    virtual int getXpicStatus(RadioChannel channel, std::string& report) = 0;
};
