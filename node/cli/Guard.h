#pragma once

#include <exception>
#include <functional>
#include <string>

#include "node/output/Answer.h"

namespace node::cli
{

/// A command inside of a command ended as that answer says.
class Ended : public std::exception
{
public:
    Ended(output::Status endStatus, const std::string& whatWentWrong) : status(endStatus), error(whatWentWrong)
    {
    }

    output::Status status;
    std::string error;
};

/// Takes a step and notes in the answer what goes wrong.
void guard(output::Answer& answer, const std::function<void()>& step);

} // namespace node::cli
