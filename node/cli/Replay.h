#pragma once

#include <string>

#include "node/cli/Recording.h"
#include "node/commands/Desk.h"

namespace node::cli
{

/// Carries out a recording on a node that begins as its node began, up to the first answer that is not the recorded
/// one. Files that its commands write are not written.
/// @param history  becomes that of the node that is left on the desk
/// @param run      is told how far it has come
/// @return done, or failed with what differs
/// @throws InputError for a file that is no recording; the node that ran before is gone when it does not fit further on
commands::Outcome replay(commands::Desk& desk, const std::string& file, History& history, commands::LongRun& run);

} // namespace node::cli
