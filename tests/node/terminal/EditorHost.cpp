#include <clocale>
#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include "node/terminal/LineEditor.h"

// A program that reads lines and shows what it read, for the tests of the line editor.
//
//   editor_host CONTROL HISTORY
//
// CONTROL is the number of a socket from which a thread reads orders, one to a line: "print TEXT", "chop TEXT" (print
// without a line end), "go" (ends a line "hold" that was typed). HISTORY is the file of the history.

namespace
{

using node::terminal::Candidates;
using node::terminal::LineEditor;

/// What may be typed: words that begin alike, one alone, a folder, a key, one in quotation marks;
/// behind "w", two whose first other letters begin with the same byte.
Candidates complete(const std::string& line)
{
    static const std::vector<std::string> Words = {"getLevel",      "getLevels", "getPower",       "set",
                                                   "level=",        "scenario/", "\"rain front\"", "\xC3\xA4rger",
                                                   "\xC3\xA4hnlich"};
    const std::size_t blank = line.find_last_of(' ');
    Candidates candidates;
    candidates.begin = blank == std::string::npos ? 0 : blank + 1;
    const std::string word = line.substr(candidates.begin);
    if (word == "w")
    {
        candidates.words = {"w\xC3\xA4hlen", "w\xC3\xB6rtlich"};
        return candidates;
    }
    for (const std::string& candidate : Words)
    {
        if (candidate.starts_with(word) || candidate.starts_with('"' + word))
        {
            candidates.words.push_back(candidate);
        }
    }
    return candidates;
}

std::string explain(const std::string& line)
{
    if (line.ends_with(' '))
    {
        return "ends its line\n";
    }
    return line.ends_with('"') ? "" : "after <" + line + ">\nanything may come";
}

/// Lets the main thread wait for an order.
class Gate
{
public:
    void open()
    {
        const std::lock_guard lock(m_mutex);
        m_isOpen = true;
        m_opened.notify_one();
    }

    void pass()
    {
        std::unique_lock lock(m_mutex);
        m_opened.wait(lock, [&] { return m_isOpen; });
        m_isOpen = false;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_opened;
    bool m_isOpen = false;
};

void obey(int control, LineEditor& editor, Gate& gate)
{
    std::string order;
    for (char character = 0; read(control, &character, 1) == 1;)
    {
        if (character != '\n')
        {
            order += character;
            continue;
        }
        if (order == "go")
        {
            gate.open();
        }
        else
        {
            editor.print(order.substr(std::string("print ").size()) + (order.starts_with("print ") ? "\n" : ""));
        }
        order.clear();
    }
}

void readLines(LineEditor& editor, Gate& gate)
{
    for (;;)
    {
        const LineEditor::Typed typed = editor.read("\x01\x1B[1m\x01host>\x01\x1B[0m\x01 ");
        if (typed.ending == LineEditor::Ending::End || typed.line == "exit")
        {
            return;
        }
        if (typed.line == "hold")
        {
            editor.print("holding\n");
            gate.pass();
        }
        const bool isLine = typed.ending == LineEditor::Ending::Line;
        editor.print(isLine ? '<' + typed.line + ">\n" : "interrupted\n");
    }
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv, argv + argc);
    const int control = std::stoi(arguments.at(1));
    std::setlocale(LC_CTYPE, "");
    umask(0);
    std::signal(SIGHUP, SIG_IGN);
    std::unique_ptr<LineEditor> editor;
    const auto completeOrThrow = [&](const std::string& line)
    {
        if (line == "throw")
        {
            editor->print("printed\n");
            throw std::runtime_error("no candidates today");
        }
        return complete(line);
    };
    editor = std::make_unique<LineEditor>(node::terminal::Helper{completeOrThrow, explain}, arguments.at(2));
    Gate gate;
    // The thread leaves signals to the main thread, as the editor wants it.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    std::thread thread(obey, control, std::ref(*editor), std::ref(gate));
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    int status = EXIT_SUCCESS;
    try
    {
        readLines(*editor, gate);
    }
    catch (const std::runtime_error& failure)
    {
        editor->print(std::string("thrown: ") + failure.what() + '\n');
        status = EXIT_FAILURE;
    }
    shutdown(control, SHUT_RD);
    thread.join();
    return status;
}
