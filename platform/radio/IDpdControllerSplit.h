#pragma once

#include <array>
#include <cstdint>

#include "framework/IInterface.h"

/// Result of a DPD controller. Values below 0x8000, negative ones among them, are success.
enum class EDPDResult : std::int32_t
{
    Success = 0,
    Failure = 0x8000,
};

/// Predistortion coefficients, in the controller's own coding; aligned for a controller that works in 32-bit words.
struct alignas(std::uint32_t) DpdCoeffs
{
    std::array<std::uint8_t, 20> bytes{};
};

/// Digital predistortion of one radio channel. Broker keys "IDpdControllerSplit_1" and "IDpdControllerSplit_2".
class IDpdControllerSplit : public virtual IInterface
{
public:
    ~IDpdControllerSplit() override;

    /// @param startParameter  what getStartParameter() answers
    virtual EDPDResult start(std::uint32_t startParameter) = 0;
    virtual EDPDResult stop() = 0;
    virtual std::uint32_t getStartParameter() = 0;
    virtual EDPDResult getCoeffs(DpdCoeffs* coefficients) = 0;
    virtual EDPDResult setCoeffs(DpdCoeffs coefficients) = 0;
};
