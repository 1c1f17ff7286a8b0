#pragma once

#include <optional>
#include <string>

#include "node/terminal/Descriptor.h"
#include "support/Screen.h"
#include "support/TemporaryFolder.h"
#include "support/Terminal.h"

/// Where an editor runs.
struct Surroundings
{
    std::string terminalType = "xterm-256color";
    std::string locale = "C.UTF-8";
    std::string historyFile{}; ///< "" for one of the session's own
    std::string editrc{};      ///< what the user's file of keys says
    TerminalSize size{};
};

/// A person at the line editor: types, and sees a screen.
class EditorSession
{
public:
    /// Waits until the editor shows its prompt.
    explicit EditorSession(const Surroundings& surroundings = {});
    EditorSession(const EditorSession&) = delete;
    EditorSession& operator=(const EditorSession&) = delete;

    /// Types keys. @param screen  what is expected to be seen then, see Screen::text()
    void type(const std::string& keys, const std::string& screen);
    void type(const std::string& keys);

    /// Orders of the program's other thread.
    void print(const std::string& line);
    void printWithoutLineEnd(const std::string& text);
    void go();

    void resize(TerminalSize size);

    void expectScreen(const std::string& expected);

    /// Until the screen is that many beeps old.
    void expectBeeps(int expected);

    /// Waits for the program's end and returns what is seen then.
    std::string screenAtTheEnd();
    int exitStatus();

    /// What is on the screen now.
    const Screen& screen() const;

    Terminal& terminal();

private:
    void order(const std::string& line);
    bool showMore();

    struct Sockets
    {
        node::terminal::Descriptor here;
        node::terminal::Descriptor there;
    };
    static Sockets makeSockets();

    TemporaryFolder m_home;
    std::optional<Sockets> m_sockets;
    Terminal m_terminal;
    Screen m_screen;
};

/// Keys that a terminal sends.
namespace key
{

inline const std::string Up = "\x1B[A";
inline const std::string Down = "\x1B[B";
inline const std::string Left = "\x1B[D";
inline const std::string Return = "\r";
inline const std::string Tab = "\t";
inline const std::string Backspace = "\x7F";
inline const std::string MetaF = "\x1B\x66";
inline const std::string CtrlA = "\x01";
inline const std::string CtrlC = "\x03";
inline const std::string CtrlD = "\x04";
inline const std::string CtrlE = "\x05";
inline const std::string CtrlK = "\x0B";
inline const std::string CtrlR = "\x12";
inline const std::string CtrlW = "\x17";

} // namespace key
