#pragma once

#include <array>
#include <charconv>
#include <cstdint>
#include <string>

#include "kel_top_api/CriGetCalibrationStatusDspPps.h"
#include "kel_top_api/CriGetHopLengthTimeDspPps.h"
#include "kel_top_api/TiManageXpic.h"
#include "private/apiNumbers.h"

/// The short reports, from a response to its text.
namespace kel::device::kelDebugCmd
{

inline std::string ppsCalibrationReport(const kel_top_api::CriGetCalibrationStatusDspPps::Response& response)
{
    // clang-format off
    std::string report =
        "PPS PPs Calibration: " + std::to_string(printedCalibrationStatus(response.calibrationStatus)) + "\n"
        "--- [0]: RTC calibration never initiated\n"
        "--- [1]: Coarse calibration not completed\n"
        "--- [2]: Fine calibration not completed\n"
        "--- [3]: Calibration completed in manual mode\n"
        "--- [4]: Fine calibration in auto mode\n"
        "--- [5]: Calibration failed: " +
            std::to_string(printedFailureReason(response.calibrationFailureReason)) + "\n";
    // clang-format on

    // The status as the API gave it: one that is unknown is printed as failed too, but has no reason to explain.
    constexpr std::uint32_t CalibrationFailed = 5;
    if (response.calibrationStatus == CalibrationFailed)
    {
        report += "------ [0]: No reason\n"
                  "------ [1]: Slave Link Loss\n"
                  "------ [2]: No response from master\n"
                  "------ [3]: Modulation change\n"
                  "------ [4]: Calibration coarse need to be completed first\n"
                  "------ [5]: Reserved\n";
    }
    return report;
}

inline std::string ppsHopLengthReport(const kel_top_api::CriGetHopLengthTimeDspPps::Response& response)
{
    return "PPS hop length time[nsec]: " + std::to_string(response.hopLengthTime) + "\n";
}

/// Hz as kHz with six decimals. Single precision, as this line has always been: 123456 Hz reads "123.456001".
inline std::string kiloHertz(std::int32_t offset_Hz)
{
    constexpr int Decimals = 6;
    const float offset_kHz = static_cast<float>(offset_Hz) / 1000.0F;
    std::array<char, sizeof "-2147483.750000"> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), static_cast<double>(offset_kHz),
                                   std::chars_format::fixed, Decimals);
    return {text.data(), end.ptr};
}

inline std::string xpicStatusReport(const kel_top_api::TiManageXpic::Response& response)
{
    // clang-format off
    return "Modem XPIC Information:\n"
           "--- XPD [.1dB]                 : " + std::to_string(response.Xpd) + "\n"
           "--- Slave carrier Offset [KHz] : " + kiloHertz(response.SlaveCarrierOffset) + "\n"
           "--- Slave Sweep ongoing        : " + std::to_string(response.SlaveSweepOngoing) + "\n"
           "--- Calibration Status         : " + std::to_string(response.CalibrationStatus) + "\n";
    // clang-format on
}

} // namespace kel::device::kelDebugCmd
