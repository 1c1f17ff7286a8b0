#include "node/scenario/Value.h"

#include "node/wording/Number.h"

namespace node::scenario
{

Value typedValue(const std::string& place, const std::string& word)
{
    Value value{place, wording::quoted(word), wording::parseWhole(word), wording::parseReal(word), std::nullopt, word};
    if (word == "true" || word == "false")
    {
        value.flag = word == "true";
    }
    return value;
}

} // namespace node::scenario
