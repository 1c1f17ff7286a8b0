#pragma once

/// @file
/// Digital predistortion (DPD).

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
    std::array<std::uint8_t, 20> bytes{}; ///< for the controller alone to read
};

/// Digital predistortion of one radio channel. Broker keys "IDpdControllerSplit_1" and "IDpdControllerSplit_2".
class IDpdControllerSplit : public virtual IInterface
{
public:
    ~IDpdControllerSplit() override;

    /// Starts the predistortion.
    /// @param startParameter  what getStartParameter() answers
    virtual EDPDResult start(std::uint32_t startParameter) = 0;
    /// Stops the predistortion.
    virtual EDPDResult stop() = 0;
    /// What start() wants to be handed, in the controller's own coding. Cannot fail.
    virtual std::uint32_t getStartParameter() = 0;
    /// Reads the coefficients.
    /// @param coefficients  filled in; not null. What a failure leaves there, the controller decides.
    virtual EDPDResult getCoeffs(DpdCoeffs* coefficients) = 0;
    /// Writes the coefficients, all of them.
    virtual EDPDResult setCoeffs(DpdCoeffs coefficients) = 0;
};
