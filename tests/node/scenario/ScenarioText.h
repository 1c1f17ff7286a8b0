#pragma once

#include <string>

#include "node/scenario/Scenario.h"
#include "node/wording/InputError.h"

/// Scenarios as text, for tests.
namespace scenario_text
{

inline constexpr auto FileName = "link.toml";

inline node::scenario::Scenario parse(const std::string& text)
{
    return node::scenario::parse(text, FileName);
}

/// What an attempt is refused with; "" when it is not. Another exception ends the test.
template <typename Attempt>
std::string refusalOf(Attempt attempt)
{
    try
    {
        attempt();
    }
    catch (const node::wording::InputError& error)
    {
        return error.what();
    }
    return "";
}

/// What a scenario is refused with.
inline std::string refusal(const std::string& text)
{
    return refusalOf([&] { parse(text); });
}

} // namespace scenario_text
