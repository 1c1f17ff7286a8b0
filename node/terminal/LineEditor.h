#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// The terminal: lines that are typed, signals, size and colours.
namespace node::terminal
{

/// What may stand where the cursor is.
struct Candidates
{
    std::size_t begin = 0;          ///< where in the line the word to complete begins
    std::vector<std::string> words; ///< what may stand there, as it is typed; one that is not whole ends in '/' or '='
};

/// What the editor asks while a line is typed. Each is given the line up to the cursor.
struct Helper
{
    std::function<Candidates(const std::string&)> complete; ///< at the tabulator key
    std::function<std::string(const std::string&)> explain; ///< at '?': what may come next, in lines; "" types the '?'
};

/// Lets a person type a line at a terminal, with history and completion.
///
/// Standard input and standard output are the terminal, in the locale of the process. One editor exists at a time;
/// while it does, Ctrl-C ends the line that is typed and not the program. read() is called by the thread that made the
/// editor, the only one that lets signals through; print() by any. The keys are those of Emacs, and what the user's
/// ~/.editrc says.
///
/// Where the program is built without line editing (PlainLineEditor.cpp) the keys are the few of the terminal itself:
/// the helper is not asked, no history is kept, and print() prints at once.
class LineEditor
{
public:
    /// @param historyFile  where the history is kept, readable by its owner alone; "" keeps none. Its folder is made
    ///                     where it is missing. A history that cannot be read or written is left alone.
    LineEditor(Helper helper, const std::string& historyFile);
    LineEditor(const LineEditor&) = delete;
    LineEditor& operator=(const LineEditor&) = delete;
    ~LineEditor();

    enum class Ending
    {
        Line,        ///< a line was typed
        Interrupted, ///< Ctrl-C: what was typed is dropped
        End,         ///< Ctrl-D on an empty line, or the terminal is gone
    };

    struct Typed
    {
        Ending ending = Ending::End;
        std::string line; ///< without its line end
    };

    /// Shows the prompt and lets a line be typed. Afterwards the cursor is at the beginning of a row. What the helper
    /// throws ends the line and is thrown here. A signal that ends the program does so when the line has been left and
    /// the terminal is as it was.
    /// @param prompt  may hold escape sequences of a colour, each between two bytes 0x01; none at its end, where
    ///                it would be lost
    Typed read(const std::string& prompt);

    /// Prints text: above the line that is being typed, where there is one, and the line stays whole. A line end is
    /// added where the text has none and a line is being typed.
    void print(const std::string& text);

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace node::terminal
