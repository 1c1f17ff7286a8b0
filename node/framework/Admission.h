#pragma once

#include <functional>

namespace node::framework
{

/// Asked by the module manager before it enters a module; what it throws reaches the module's constructor.
using Admission = std::function<void()>;

/// Replaces the admission. The first one lets every module in. Not to be called while modules register.
/// @return the one that was replaced
Admission setAdmission(Admission admission);

} // namespace node::framework
