#include "node/output/Json.h"

#include <cmath>
#include <cstdint>
#include <variant>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "node/output/JsonText.h"

namespace node::output
{

namespace
{

using Json = nlohmann::ordered_json;

/// Adds the value of a field, each kind in its way.
struct ValueAdder
{
    void operator()(const std::string& text) const
    {
        addText(field, "value", text);
    }

    void operator()(bool value) const
    {
        field["value"] = value;
    }

    void operator()(std::int64_t number) const
    {
        field["value"] = number;
    }

    void operator()(double number) const
    {
        field["value"] = std::isfinite(number) ? Json(number) : Json(fmt::format("{}", number));
    }

    Json& field;
};

Json toJson(const report::Field& field)
{
    Json document = Json::object();
    if (!field.under.empty())
    {
        addText(document, "under", field.under);
    }
    addText(document, "label", field.label);
    std::visit(ValueAdder{document}, field.value);
    if (!field.unit.empty())
    {
        addText(document, "unit", field.unit);
    }
    return document;
}

template <typename Element>
Json toJsonList(const std::vector<Element>& elements)
{
    Json list = Json::array();
    for (const Element& element : elements)
    {
        list.push_back(toJson(element));
    }
    return list;
}

const char* nameOf(Status status)
{
    switch (status)
    {
    case Status::Done:
        return "done";
    case Status::CommandFailed:
        return "failed";
    case Status::NotUnderstood:
        return "not understood";
    case Status::NotStarted:
        break;
    }
    return "not started";
}

} // namespace

Json toJson(const Answer& answer)
{
    const commands::Outcome outcome = answer.outcome.value_or(commands::Outcome{});
    Json document = Json::object();
    document["schema"] = fmt::format("kel-node/{}", SchemaVersion);
    addTextOrNull(document, "place", answer.place);
    addText(document, "command", answer.command);
    addTexts(document, "arguments", answer.arguments);
    document["channel"] = answer.channel ? Json(*answer.channel) : Json();
    document["time_s"] = radio::seconds(answer.time);
    document["status"] = nameOf(answer.status);
    document["exit_status"] = static_cast<int>(answer.status);
    document["result"] = answer.outcome ? Json(outcome.result) : Json();
    addText(document, "report", outcome.output);
    document["fields"] = toJsonList(fieldsOf(outcome));
    document["trace"] = toJsonList(answer.trace);
    addTextOrNull(document, "error", answer.error);
    return document;
}

Json toJson(const TimedMessage& message)
{
    const trace::Message& written = message.message;
    Json document = Json::object();
    document["time_s"] = radio::seconds(message.time);
    addText(document, "channel", written.channel);
    document["level"] = written.level;
    addTextOrNull(document, "file", written.file);
    document["line"] = written.file.empty() ? Json() : Json(written.line);
    addTextOrNull(document, "function", written.function);
    addText(document, "text", written.text);
    return document;
}

std::string toLine(const Json& document)
{
    return dump(document) + "\n";
}

} // namespace node::output
