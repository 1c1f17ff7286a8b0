#pragma once

#include "node/services/FaultPlan.h"
#include "radio/IRlbspKelApi.h"

namespace node::services
{

/// The board-support interface: keeps the callback that was installed last.
class BoardSupport : public IRlbspKelApi
{
public:
    /// @param faults  borrowed; outlives the object
    explicit BoardSupport(FaultPlan& faults);

    void installDebugCmdCallback(KelDebugCmdCallback* callback) override;

    /// Null while none is installed.
    KelDebugCmdCallback* installedCallback() const;

private:
    FaultPlan& m_faults;
    KelDebugCmdCallback* m_callback = nullptr;
};

} // namespace node::services
