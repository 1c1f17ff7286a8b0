#include "node/commands/Outcome.h"

namespace node::commands
{

std::vector<report::Field> fieldsOf(const Outcome& outcome)
{
    return outcome.isReport ? report::fieldsOf(outcome.output) : outcome.fields;
}

} // namespace node::commands
