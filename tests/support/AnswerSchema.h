#pragma once

#include <string>

#include <nlohmann/json.hpp>

/// The schema of answers, as docs/ has it.
namespace answer_schema
{

/// The schema's own document.
const nlohmann::json& document();

/// Whether the schema accepts an answer.
bool accepts(const nlohmann::ordered_json& answer);

/// Whether it accepts a whole answer that holds `value` there.
/// @param pointer  a JSON pointer to a member, which need not be there
bool acceptsAt(const std::string& pointer, const nlohmann::ordered_json& value);

} // namespace answer_schema
