#pragma once

#include "radio/IRlbspKelApi.h"

namespace node::services
{

/// The board-support interface: keeps the callback that was installed last.
class BoardSupport : public IRlbspKelApi
{
public:
    void installDebugCmdCallback(KelDebugCmdCallback* callback) override;

    /// Null while none is installed.
    KelDebugCmdCallback* installedCallback() const;

private:
    KelDebugCmdCallback* m_callback = nullptr;
};

} // namespace node::services
