#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "node/services/BoardSupport.h"
#include "node/services/ServiceTest.h"
#include "radio/IDpdControllerSplit.h"
#include "radio/ITiGetDspModemStatus.h"
#include "radio/ITiManageRadioChannelNearEnd.h"
#include "radio/RadioChannel.h"

/// What a call gave its caller.
struct Outcome
{
    std::int64_t code = 0;
    std::string text;
    std::string content; ///< of a response

    bool operator==(const Outcome&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Outcome& outcome)
{
    return out << outcome.code << " \"" << outcome.text << "\" {" << outcome.content << "}";
}

/// What calls write into: filled with what no service answers.
struct CallerRecords
{
    CallerRecords();

    DpdCoeffs coefficients;
    DspModemStatus status;
    RadioChannelInfo info;
};

std::string contentOf(const CallerRecords& records);

/// A link with predistortion stopped, so that every call that changes something has something to change.
struct CallBench : ServiceBench
{
    CallBench();

    node::services::BoardSupport boardSupport{faults};
    CallerRecords records;
};

/// A call of the services, made for a channel of the bench.
struct ServiceCall
{
    std::string name;
    std::optional<std::int32_t> refusal; ///< the code that the services themselves refuse with; none: they do not
    bool answersText;
    std::function<Outcome(CallBench&, RadioChannel)> make;
    std::function<std::string(RadioChannel)> untouched; ///< content of a response that tells nothing
};

std::ostream& operator<<(std::ostream& out, const ServiceCall& call);

/// Every one of platformCalls() but the registration of a module, which the framework answers.
const std::vector<ServiceCall>& serviceCalls();
