#include "node/cli/Transcript.h"

#include <sstream>

#include "node/cli/Prompt.h"
#include "node/cli/Session.h"
#include "node/output/TextOutput.h"

namespace node::cli
{

std::string transcript(const std::vector<std::string>& lines)
{
    using terminal::LineEditor;
    std::ostringstream screen;
    output::Look look;
    look.screen = look.errorScreen = true;
    output::TextOutput output(screen, screen, look);
    commands::NodeDesk desk;
    Surroundings surroundings;
    surroundings.wait = [](std::chrono::milliseconds) { return false; };
    Session session(desk, output, surroundings);
    session.start({});

    auto next = lines.begin();
    const auto type = [&](const std::string& prompt)
    {
        if (next == lines.end())
        {
            return LineEditor::Typed{LineEditor::Ending::End, ""};
        }
        screen << prompt << *next << "\n";
        return LineEditor::Typed{LineEditor::Ending::Line, *next++};
    };
    runPrompt(
        session, type, [](const std::string& /*greeting*/) {}, false);
    return screen.str();
}

} // namespace node::cli
