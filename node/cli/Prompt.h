#pragma once

#include <functional>
#include <string>

#include "node/cli/Session.h"
#include "node/output/TextOutput.h"
#include "node/terminal/LineEditor.h"

namespace node::cli
{

/// Reads a line from a person who is shown the prompt.
using ReadLine = std::function<terminal::LineEditor::Typed(const std::string& prompt)>;

/// Carries out what a person types, until "exit" or the end of the input. Failures do not end it.
/// @param print    of what is no answer
/// @param colours  whether the prompt may have some
void runPrompt(Session& session, const ReadLine& read, const std::function<void(const std::string&)>& print,
               bool colours);

/// Text at a prompt: what comes while a line is typed stands above it.
class PromptOutput : public output::TextOutput
{
public:
    /// @param editor  that lets the lines be typed; borrowed
    PromptOutput(std::ostream& output, std::ostream& errors, const output::Look& look, terminal::LineEditor& editor);

protected:
    void tell(const std::string& text) override;

private:
    terminal::LineEditor& m_editor;
};

} // namespace node::cli
