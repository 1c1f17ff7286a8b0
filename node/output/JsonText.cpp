#include "node/output/JsonText.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include <nlohmann/json.hpp>

#include "node/wording/Number.h"

namespace node::output
{

namespace
{

using Json = nlohmann::ordered_json;

/// A text as a document can hold it.
struct JsonText
{
    Json text;
    Json bytes; ///< null where the text is UTF-8
};

JsonText jsonText(const std::string& text)
{
    Json replaced = Json::parse(dump(text));
    Json bytes;
    if (replaced != text)
    {
        bytes = wording::printBytes(std::vector<std::uint8_t>(text.begin(), text.end()));
    }
    return {std::move(replaced), std::move(bytes)};
}

} // namespace

std::string dump(const Json& document)
{
    return document.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void addText(Json& object, const std::string& name, const std::string& text)
{
    JsonText added = jsonText(text);
    object[name] = std::move(added.text);
    if (!added.bytes.is_null())
    {
        object[name + "_hex"] = std::move(added.bytes);
    }
}

void addTextOrNull(Json& object, const std::string& name, const std::string& text)
{
    if (text.empty())
    {
        object[name] = nullptr;
    }
    else
    {
        addText(object, name, text);
    }
}

void addTexts(Json& object, const std::string& name, const std::vector<std::string>& texts)
{
    Json list = Json::array();
    Json bytes = Json::array();
    for (const std::string& text : texts)
    {
        JsonText added = jsonText(text);
        list.push_back(std::move(added.text));
        bytes.push_back(std::move(added.bytes));
    }
    object[name] = std::move(list);
    if (std::any_of(bytes.begin(), bytes.end(), [](const Json& digits) { return !digits.is_null(); }))
    {
        object[name + "_hex"] = std::move(bytes);
    }
}

} // namespace node::output
