#include "node/cli/Prompt.h"

#include <fmt/color.h>
#include <fmt/format.h>

#include "node/commands/LinkText.h"

namespace node::cli
{

namespace
{

/// "kel-node 0:01:30.0> ", with the node's time.
std::string promptText(const Session& session, bool colours)
{
    const auto time = session.nodeTime();
    const std::string text = time ? "kel-node " + commands::clockText(*time) + ">" : "kel-node (no node)>";
    // The editor must know which bytes take no room: they stand between these.
    constexpr const char* Mark = "\001";
    if (!colours)
    {
        return text + " ";
    }
    const std::string bold = fmt::format(fmt::emphasis::bold, "{}", Mark + text + Mark);
    return Mark + bold + Mark + " ";
}

} // namespace

void runPrompt(Session& session, const ReadLine& read, const std::function<void(const std::string&)>& print,
               bool colours)
{
    using Ending = terminal::LineEditor::Ending;
    print("A simulated node. \"help\" lists commands, \"?\" what may come next, \"exit\" leaves.\n");
    while (!session.left() && session.good())
    {
        try
        {
            session.letTimeGoOn();
        }
        catch (const commands::Interrupted&) // nobody waits for the clock: a line is typed all the same
        {
        }
        session.closeLine();
        const auto typed = read(promptText(session, colours));
        if (typed.ending == Ending::End)
        {
            return;
        }
        if (typed.ending == Ending::Line)
        {
            session.carryOutLine(typed.line);
        }
    }
}

PromptOutput::PromptOutput(std::ostream& output, std::ostream& errors, const output::Look& look,
                           terminal::LineEditor& editor)
    : TextOutput(output, errors, look), m_editor(editor)
{
}

void PromptOutput::tell(const std::string& text)
{
    m_editor.print(text);
}

} // namespace node::cli
