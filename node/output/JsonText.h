#pragma once

#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

/// Text in documents, whatever bytes it holds.
namespace node::output
{

/// The document without line ends. What is not UTF-8 has U+FFFD in its place.
std::string dump(const nlohmann::ordered_json& document);

/// Adds a text; one that is not UTF-8 with U+FFFD in its place, and its bytes as hexadecimal digits in "NAME_hex".
void addText(nlohmann::ordered_json& object, const std::string& name, const std::string& text);

/// As addText(); null for "".
void addTextOrNull(nlohmann::ordered_json& object, const std::string& name, const std::string& text);

/// Adds a list of texts. Where one is not UTF-8, "NAME_hex" is a list as long, with null for each that is.
void addTexts(nlohmann::ordered_json& object, const std::string& name, const std::vector<std::string>& texts);

} // namespace node::output
