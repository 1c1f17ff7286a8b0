#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "KelDebugCmd.h"
#include "doubles/RecordingServices.h"
#include "fuzz/Input.h"
#include "fuzz/expected/Platform.h"
#include "fuzz/expected/StartUp.h"

namespace fuzz
{

/// The module on a recording platform that the input decides.
class RecordedModule
{
public:
    using Commands = IRlbspKelApi::KelDebugCmdCallback;

    explicit RecordedModule(Input& input);
    RecordedModule(const RecordedModule&) = delete;
    RecordedModule& operator=(const RecordedModule&) = delete;
    ~RecordedModule();

    /// Constructs and initialises the module.
    /// @return whether it installed its callback, without which there are no operations
    /// @throws Finding where it does otherwise than is expected
    bool start();

    // What the platform answers to the next operation.
    void fillDpd(RadioChannel channel);
    void fillModemStatus();
    void fillNearEnd();
    void fillXpic();

    /// Calls the operation on both sides and compares all that comes of it.
    /// @throws Finding where it is not the same
    void compare(const char* name, const std::function<int(Commands&, expected::Outcome&)>& operation,
                 const std::function<void(const expected::Platform&, expected::Outcome&)>& expectation);

    /// @throws Finding where the near end was asked for another identity than the channel's
    void expectIdentityRequest(RadioChannel channel) const;

private:
    /// @return whether it is what the module looks for
    bool offer(const std::string& key, const std::shared_ptr<IInterface>& service);
    expected::Platform platform() const;

    Input& m_input;
    std::shared_ptr<doubles::RecordingBoardSupport> m_boardSupport = std::make_shared<doubles::RecordingBoardSupport>();
    std::array<std::shared_ptr<doubles::RecordingDpdController>, 2> m_dpd = {
        std::make_shared<doubles::RecordingDpdController>("IDpdControllerSplit_1"),
        std::make_shared<doubles::RecordingDpdController>("IDpdControllerSplit_2")};
    doubles::RecordingNearEnd m_nearEnd;
    doubles::RecordingModemStatus m_modemStatus;
    expected::Broker m_broker{};
    expected::StartUp m_start;
    std::unique_ptr<kel::device::kelDebugCmd::KelDebugCmd> m_module;
};

} // namespace fuzz
