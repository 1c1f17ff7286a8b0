#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "node/commands/Console.h"
#include "node/terminal/Interrupt.h"

namespace node::cli
{

/// A long command that Ctrl-C ends, and whose progress is drawn once it has taken a while.
class Progress : public commands::LongRun
{
public:
    using Clock = std::chrono::steady_clock;

    /// @param draw  draws on a terminal; none where there is no terminal
    /// @param now   reads the clock
    explicit Progress(std::function<void(const std::string&)> draw,
                      std::function<Clock::time_point()> now = Clock::now);

    /// Takes what is drawn away.
    ~Progress() override;

    void reached(double share) override;

private:
    void draw(const std::string& text);

    std::function<void(const std::string&)> m_draw;
    std::function<Clock::time_point()> m_now;
    terminal::Interrupt m_interrupt;
    Clock::time_point m_nextLook;
    Clock::time_point m_nextDrawing;
    bool m_drawn = false;
};

} // namespace node::cli
