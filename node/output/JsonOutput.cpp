#include "node/output/JsonOutput.h"

#include <ostream>

#include <nlohmann/json.hpp>

#include "node/output/Json.h"

namespace node::output
{

JsonOutput::JsonOutput(std::ostream& output) : m_output(output)
{
}

void JsonOutput::trace(const TimedMessage& /*message*/)
{
}

void JsonOutput::show(const Answer& answer)
{
    m_output << toLine(toJson(answer)) << std::flush;
}

void JsonOutput::closeLine()
{
}

bool JsonOutput::good() const
{
    return m_output.good();
}

std::unique_ptr<Output> JsonOutput::beginWatch(const commands::Watch& /*watch*/)
{
    return nullptr;
}

} // namespace node::output
