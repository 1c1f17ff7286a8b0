#pragma once

#include <functional>
#include <iosfwd>
#include <string>

#include "node/output/Output.h"
#include "node/terminal/Screen.h"

namespace node::output
{

/// What a terminal can show; without one, nothing of it.
struct Look
{
    bool colours = false;                 ///< of what goes to the output
    bool errorColours = false;            ///< of what went wrong
    bool redraws = false;                 ///< a watch draws each round over the one before
    std::function<terminal::Size()> size; ///< of the terminal at the moment; none: 80 by 24
    bool screen = false;                  ///< the output goes to a terminal
    bool errorScreen = false;             ///< what went wrong does

    /// Output and errors meet: each has lines of its own.
    bool oneScreen() const
    {
        return screen && errorScreen;
    }
};

/// Answers as text: reports to one stream as the module wrote them, errors and trace messages to the other.
class TextOutput : public Output
{
public:
    /// @param output, errors  borrowed
    TextOutput(std::ostream& output, std::ostream& errors, Look look = {});

    void trace(const TimedMessage& message) override;
    void show(const Answer& answer) override;
    void closeLine() override;
    void interrupted() override;
    bool good() const override;
    std::unique_ptr<Output> beginWatch(const commands::Watch& watch) override;

    /// Prints a text that is no answer.
    void print(const std::string& text);

    /// Prints a drawing, which leaves the cursor at the beginning of a line.
    void draw(const std::string& frame);

protected:
    /// Writes what is not the report: to the stream of the errors.
    virtual void tell(const std::string& text);

private:
    std::ostream& m_output;
    std::ostream& m_errors;
    Look m_look;
    bool m_lineIsOpen = false; ///< what was printed last did not end its line
};

/// "0:01:30.0 [channel] level N, file:line function: text", with a line end.
std::string traceText(const TimedMessage& message);

/// "kel-node: PLACE: ERROR", with a line end; "" for an answer without an error.
std::string errorText(const Answer& answer);

} // namespace node::output
