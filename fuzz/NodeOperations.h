#pragma once

#include <functional>

#include "fuzz/Input.h"
#include "fuzz/KnownNode.h"

namespace fuzz
{

/// The operations on a node, with arguments of the input: what is expected of the node, then what it does.
class NodeOperations
{
public:
    NodeOperations(Input& input, KnownNode& node);

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
    using Commands = KnownNode::Commands;

    /// A call of the channel's DPD controller, where it has one.
    /// @param done  what is known once the controller has done its work
    bool callDpd(
        const char* call, RadioChannel channel, const std::function<void()>& done = [] {});

    Input& m_input;
    KnownNode& m_node;
};

} // namespace fuzz
