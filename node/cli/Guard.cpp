#include "node/cli/Guard.h"

#include "node/startup/Node.h"
#include "node/wording/InputError.h"

namespace node::cli
{

using output::Status;

void guard(output::Answer& answer, const std::function<void()>& step)
{
    const auto fail = [&](Status status, const std::string& error)
    {
        answer.status = status;
        answer.error = error;
    };
    const auto command = [&] { return answer.command.empty() ? "" : answer.command + ": "; };
    try
    {
        step();
    }
    catch (const Ended& ended)
    {
        fail(ended.status, ended.error);
    }
    catch (const wording::InputError& error)
    {
        fail(Status::NotUnderstood, error.what());
    }
    catch (const startup::StartUpError& error)
    {
        fail(Status::NotStarted, error.what());
    }
    catch (const commands::CutShort& error)
    {
        answer.cutShort = true;
        fail(Status::CommandFailed, command() + error.what());
    }
    catch (const commands::CommandError& error)
    {
        fail(Status::CommandFailed, command() + error.what());
    }
    catch (const std::exception& error)
    {
        fail(Status::CommandFailed, command() + "threw " + error.what());
    }
}

} // namespace node::cli
