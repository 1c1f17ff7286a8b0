#pragma once

// First, for its initialiser: the standard streams are made before the statics of every source and go after them.
#include <iostream>
#include <string>

/// Texts of the debug reports: numbers with their units, and the constants that the reports share.
///
/// The functions keep no state and may be called from any thread. Numbers are written the same way whatever the
/// process's locale is: six significant digits at most, no trailing zeros, an exponent from a million on.
namespace kel::device::kelDebugCmd::util
{

const std::string DbUnit = " dB";
const std::string DbmUnit = " dBm";
const std::string KhzUnit = " kHz";
const std::string DataNotRetrievedText = "Data could not be retrieved!";

/// `value` hundredths as a number, followed by `unit` as it stands: 1234 and " dB" give "12.34 dB".
std::string makeDecibelString(int value, std::string unit);

/// `value` hundredths of a dB: -150 gives "-1.5 dB".
std::string makeDbString(int value);

/// `value` hundredths of a dBm: 0 gives "0 dBm".
std::string makeDbmString(int value);

/// `value` hundredths as a number: 5 gives "0.05".
std::string makeDecimalValString(int value);

/// True when `name` directly followed by `value` stands anywhere in `text`.
bool validateParamValue(const std::string& text, const std::string& name, const std::string& value);

/// True when `error` stands anywhere in `text`.
bool validateError(const std::string& text, const std::string& error);

} // namespace kel::device::kelDebugCmd::util
