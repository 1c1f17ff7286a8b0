#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "framework/ModuleInterface.h"
#include "radio/IDpdControllerSplit.h"
#include "radio/IRlbspKelApi.h"
#include "radio/ITiGetDspModemStatus.h"
#include "radio/ITiManageRadioChannelNearEnd.h"
#include "radio/RadioChannel.h"
#include "trace/VemTrace.h"

namespace kel::device::kelDebugCmd
{

class GetCtStatusDebugCmd;

/// The debug commands of a radio-link node, as a module of its framework.
///
/// The node's start-up code constructs one. The object enters itself with the module manager; onModuleInit() installs
/// it as the receiver of the debug commands. Everything it is given or looks up is borrowed and must outlive it:
/// the two interfaces, and the broker's objects, among them the one that holds the installed callback.
///
/// A command runs on its caller's thread, makes at most three synchronous calls of services and keeps nothing. Commands
/// may run concurrently as far as these services allow it, but not during onModuleInit() and the destructor.
/// Channels are 1 and 2; other values are outside the contract. A command answers exactly 0 (done) or 1 (failed)
/// and replaces a report only when its text is complete; `std::bad_alloc` passes to the caller.
class KelDebugCmd : public ModuleInterface, public IRlbspKelApi::KelDebugCmdCallback
{
public:
    /// @param numberOfRadioChannels  how many radio channels the node has; DPD controllers are looked up for 1 or 2
    /// @throws what the module manager throws when it refuses the module
    KelDebugCmd(int numberOfRadioChannels, ITiManageRadioChannelNearEnd& radioChannelNearEnd,
                ITiGetDspModemStatus& dspModemStatus);
    ~KelDebugCmd() override;

    /// Installs the object on "IRlbspKelApi" and looks up the DPD controllers of the channels.
    /// @return 0, or 0x8000 when an interface is missing; without a DPD controller the other commands still work
    std::int32_t onModuleInit() override;

    /// The carrier-termination report. Answers 0 in every case: the report itself tells of a failure. Not to be called
    /// before onModuleInit() has returned, which makes what it needs after it has installed the object.
    int getCtStatus(RadioChannel channel, std::string& report) override;

    /// The modem's status as text.
    int getBcmModemStatus(RadioChannel channel, std::string& report) override;

    /// The calibration status of the PPS output, with its legends.
    int getPpsCalibrationStatus(RadioChannel channel, std::string& report) override;

    /// The time that the signal takes over the hop, in ns.
    int getPpsHopLengthTime(RadioChannel channel, std::string& report) override;

    /// Calibrates the PPS output.
    /// @param mode   0 to 3, others fail without a call
    /// @param value  passed on as it is
    int calibratePps(RadioChannel channel, int mode, unsigned short value) override;

    /// Chooses the output mode of the PPS output.
    /// @param mode  0 to 2, others fail without a call
    int setPpsOutputMode(RadioChannel channel, int mode) override;

    /// Chooses the source of the PPS output.
    /// @param source     0 to 2, others fail without a call
    /// @param parameter  passed on as it is
    int setPpsSource(RadioChannel channel, int source, int parameter) override;

    /// Starts DPD with the controller's own start parameter. Fails without a trace where there is no controller,
    /// as the other DPD commands do.
    int startDpd(RadioChannel channel) override;

    /// Stops DPD.
    int stopDpd(RadioChannel channel) override;

    /// Writes the predistortion coefficients, as they are.
    int setDpdCoefficients(RadioChannel channel, DpdCoeffs coefficients) override;

    /// Reads the predistortion coefficients.
    /// @param coefficients  filled by the controller, and left as the controller left it on failure
    int getDpdCoefficients(RadioChannel channel, DpdCoeffs* coefficients) override;

    /// Mutes or unmutes the slave of the canceller (XPIC).
    /// @param mute  0 unmutes, every other value mutes
    int setXpicSlaveMute(RadioChannel channel, unsigned char mute) override;

    /// Starts an acquisition of the canceller.
    /// @param acquireMode    0 to 2; others are sent as "out of range" for the API to answer
    /// @param acquireOption  0 to 3; others are sent as "out of range" for the API to answer
    int xpicAcquireStart(RadioChannel channel, unsigned char acquireMode, unsigned char acquireOption) override;

    /// Reads the canceller's preamble.
    /// @param preamble  receives 0 to 3, or 255 for a preamble outside that range; untouched on failure
    int getXpicPreamble(RadioChannel channel, unsigned char* preamble) override;

    /// Chooses the canceller's preamble.
    /// @param preamble  0 to 3; others are sent as "out of range" for the API to answer
    int setXpicPreamble(RadioChannel channel, unsigned char preamble) override;

    /// The canceller's status; on failure the report is the API's own text.
    int getXpicStatus(RadioChannel channel, std::string& report) override;

private:
    std::int32_t m_numberOfRadioChannels;
    ITiManageRadioChannelNearEnd& m_radioChannelNearEnd;
    ITiGetDspModemStatus& m_dspModemStatus;
    std::unique_ptr<GetCtStatusDebugCmd> m_getCtStatusDebugCmd;
    std::array<IDpdControllerSplit*, 2> m_dpdController{}; ///< of channel 1, of channel 2

    static VemTrace m_trace;
};

} // namespace kel::device::kelDebugCmd
