#pragma once

#include <cstdint>
#include <span>
#include <string_view>

/// The platform's calls, as the module names them, and what can be put into their answers.
namespace node::services
{

/// The result code of a refusal: of the top-level API, and of the other interfaces.
inline constexpr std::int32_t TopApiRefusal = 1;
inline constexpr std::int32_t PlatformRefusal = 0x8000;

/// What a call answers.
enum class AnswerKind
{
    TopApiResult,   ///< a code, failing above 0, and a text
    PlatformResult, ///< a code, failing from 0x8000 on, and a text
    PlatformCode,   ///< a code alone, failing from 0x8000 on
    Number,         ///< a number that is no result
    Text,           ///< a text
    Nothing,
};

struct PlatformCall
{
    bool answersCode() const;
    bool answersText() const;

    /// Whether a code in the call's answer means that it failed.
    bool fails(std::int32_t code) const;

    /// "IDpdControllerSplit.start"
    std::string_view name;
    AnswerKind kind;
    bool hasChannel; ///< is about one radio channel
};

/// Every call of the services that the module makes.
std::span<const PlatformCall> platformCalls();

/// Null for a name that no call has.
const PlatformCall* findPlatformCall(std::string_view name);

} // namespace node::services
