#include "node/cli/Progress.h"

#include <utility>

#include <fmt/format.h>

#include "node/terminal/Screen.h"

namespace node::cli
{

namespace
{

constexpr std::chrono::milliseconds BetweenLooks(20);
constexpr std::chrono::milliseconds BeforeFirstDrawing(500);
constexpr std::chrono::milliseconds BetweenDrawings(100);

} // namespace

Progress::Progress(std::function<void(const std::string&)> draw, std::function<Clock::time_point()> now)
    : m_draw(std::move(draw)), m_now(std::move(now)), m_nextLook(m_now()),
      m_nextDrawing(m_nextLook + BeforeFirstDrawing)
{
}

Progress::~Progress()
{
    if (m_drawn)
    {
        draw("");
    }
}

void Progress::reached(double share)
{
    const Clock::time_point now = m_now();
    if (now < m_nextLook)
    {
        return;
    }
    m_nextLook = now + BetweenLooks;
    if (m_interrupt.happened())
    {
        throw commands::Interrupted();
    }
    if (m_draw && now >= m_nextDrawing)
    {
        m_nextDrawing = now + BetweenDrawings;
        draw(fmt::format("{:3.0f} %", share * 100));
    }
}

void Progress::draw(const std::string& text)
{
    m_draw("\r" + text + terminal::ClearToLineEnd);
    m_drawn = true;
}

} // namespace node::cli
