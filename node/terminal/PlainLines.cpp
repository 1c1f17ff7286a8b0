#include "node/terminal/PlainLines.h"

#include <array>
#include <utility>

#include <poll.h>
#include <unistd.h>

#include "node/terminal/StandardInput.h"

namespace node::terminal
{

PlainLines::PlainLines(std::FILE* screen) : m_screen(screen)
{
}

void PlainLines::show(const std::string& text) const
{
    std::fwrite(text.data(), 1, text.size(), m_screen);
    std::fflush(m_screen);
}

LineEditor::Typed PlainLines::read(const std::string& prompt)
{
    using Ending = LineEditor::Ending;
    // The terminal shows Ctrl-C as ^C, and goes on behind it.
    const auto dropLine = [&]
    {
        m_bytes.clear();
        show("\n");
    };
    if (m_interrupt.happened())
    {
        dropLine();
    }
    show(prompt);
    for (;;)
    {
        if (const std::size_t end = m_bytes.find('\n'); end != std::string::npos)
        {
            const std::string line = m_bytes.substr(0, end);
            m_bytes.erase(0, end + 1);
            return {Ending::Line, line};
        }
        std::array<pollfd, 2> ready{{{m_interrupt.descriptor(), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}}};
        if (poll(ready.data(), ready.size(), -1) < 0)
        {
            continue; // a signal came that is not ours
        }
        if (ready[0].revents != 0 && m_interrupt.happened())
        {
            dropLine();
            return {Ending::Interrupted, ""};
        }
        if (ready[1].revents != 0 && !readInput(m_bytes))
        {
            show("\n"); // the prompt stands there
            const std::string line = std::exchange(m_bytes, {});
            return {line.empty() ? Ending::End : Ending::Line, line};
        }
    }
}

} // namespace node::terminal
