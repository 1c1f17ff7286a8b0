#pragma once

#include <string>

#include <nlohmann/json_fwd.hpp>

#include "node/output/Answer.h"

/// Answers for machines. docs/json.md describes the documents, docs/answer-1.schema.json is their schema.
namespace node::output
{

/// The version of the schema: it changes when a document that fitted before may no longer fit.
constexpr int SchemaVersion = 1;

/// An answer as a document. Text that is not UTF-8 has U+FFFD for what is not, and beside it its bytes.
nlohmann::ordered_json toJson(const Answer& answer);

/// A trace message as a document, as it stands in an answer's list and in a trace file.
nlohmann::ordered_json toJson(const TimedMessage& message);

/// The document on one line, with a line end.
std::string toLine(const nlohmann::ordered_json& document);

} // namespace node::output
