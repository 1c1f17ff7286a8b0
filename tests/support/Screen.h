#pragma once

#include <memory>
#include <string>

#include <vterm.h>

#include "support/Terminal.h"

/// What a person sees at a terminal: the rows that its program's output has left there.
class Screen
{
public:
    explicit Screen(TerminalSize size = {});
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    ~Screen();

    /// Takes output of the program.
    void show(const std::string& output);

    void resize(TerminalSize size);

    /// The rows, with those that have left the screen at its top, each with a line end and without blanks at its end;
    /// '|' stands where the cursor is. Empty rows below the cursor are left out.
    std::string text() const;

    /// How often it beeped.
    int beeps() const;

private:
    std::string row(int number) const;

    std::unique_ptr<VTerm, decltype(&vterm_free)> m_terminal;
    VTermScreen* m_screen;
    TerminalSize m_size;
    std::string m_scrolledOff;
    int m_beeps = 0;
};
