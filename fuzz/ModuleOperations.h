#pragma once

#include "fuzz/Input.h"
#include "fuzz/RecordedModule.h"

namespace fuzz
{

/// The operations of the module, each on what the input puts into the records that it reads.
class ModuleOperations
{
public:
    ModuleOperations(Input& input, RecordedModule& module);

    /// The operation that the input says.
    /// @throws Finding where it does otherwise than is expected
    void operate();

    void getCtStatus(RadioChannel channel);
    void getBcmModemStatus(RadioChannel channel);
    void getPpsCalibrationStatus(RadioChannel channel);
    void getPpsHopLengthTime(RadioChannel channel);
    void calibratePps(RadioChannel channel);
    void setPpsSource(RadioChannel channel);
    void setPpsOutputMode(RadioChannel channel);
    void startDpd(RadioChannel channel);
    void stopDpd(RadioChannel channel);
    void setDpdCoefficients(RadioChannel channel);
    void getDpdCoefficients(RadioChannel channel);
    void setXpicSlaveMute(RadioChannel channel);
    void xpicAcquireStart(RadioChannel channel);
    void getXpicPreamble(RadioChannel channel);
    void setXpicPreamble(RadioChannel channel);
    void getXpicStatus(RadioChannel channel);

private:
    using Commands = RecordedModule::Commands;

    Input& m_input;
    RecordedModule& m_module;
};

} // namespace fuzz
