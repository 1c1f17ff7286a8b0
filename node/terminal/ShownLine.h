#pragma once

#include <cstddef>
#include <string>

#include <histedit.h>

namespace node::terminal
{

/// The line that libedit lets a person type, as it stands at the terminal: a prompt, and what was typed behind it in as
/// many rows as it takes. Every function but setPrompt() is for the time while libedit waits for a key.
class ShownLine
{
public:
    /// @param editor  borrowed; asks prompt() for its prompt
    explicit ShownLine(EditLine* editor);

    /// @param prompt  may hold escape sequences, each between two bytes 0x01
    void setPrompt(const std::string& prompt);

    /// The prompt for libedit, which does not change it.
    wchar_t* prompt();

    /// What was typed before the cursor.
    std::string toCursor() const;

    /// Puts a text in the place of what stands from `begin` (a byte of toCursor()) to the cursor. The next draw() or
    /// refresh of libedit shows it.
    void replaceFrom(std::size_t begin, const std::string& text);

    /// Inserts a text at the cursor, likewise.
    void insert(const std::string& text);

    /// Moves the cursor behind the blank that it stands on. @return whether there was one
    bool passBlank();

    /// Prints a text, which ends with a line end, where the line was, and the line below it.
    void printAbove(const std::string& text);

    /// Leaves the line as it stands, moves to its end and prints a text there. No line is shown afterwards.
    void printBehind(const std::string& text);

    /// Shows the line at the place where the terminal's cursor is.
    void draw();

    /// Shows the line at the terminal's new width.
    void resize();

    /// The terminal's width.
    int columns() const;

private:
    void erase(int rowsAbove);
    bool can(const char* capability) const;
    int row() const;

    EditLine* m_editor;
    std::wstring m_prompt;
};

} // namespace node::terminal
