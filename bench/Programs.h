#pragma once

namespace bench
{

/// Registers what programs cost from start to end: the node, and others to compare it with.
void registerPrograms();

} // namespace bench
