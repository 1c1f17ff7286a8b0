#include "node/terminal/LineEditor.h"

#include <cerrno>
#include <cstdio>
#include <exception>
#include <mutex>
#include <stdexcept>
#include <utility>

#include <histedit.h>

#include "node/terminal/HelperKeys.h"
#include "node/terminal/History.h"
#include "node/terminal/Keyboard.h"
#include "node/terminal/Layout.h"
#include "node/terminal/Letters.h"
#include "node/terminal/ShownLine.h"

namespace node::terminal
{

namespace
{

struct Close
{
    void operator()(EditLine* editor) const
    {
        el_end(editor);
    }

    void operator()(std::FILE* file) const
    {
        std::fclose(file);
    }
};

/// libedit complains of a terminal type that it does not know, and treats it as a dumb one. Nobody needs to read that.
std::unique_ptr<EditLine, Close> openEditor()
{
    const std::unique_ptr<std::FILE, Close> nowhere(std::fopen("/dev/null", "we"));
    std::FILE* const complaints = nowhere ? nowhere.get() : stderr;
    std::unique_ptr<EditLine, Close> editor(el_init(program_invocation_short_name, stdin, stdout, complaints));
    if (!editor)
    {
        throw std::runtime_error("the line editor does not start");
    }
    el_set(editor.get(), EL_SETFP, 2, stderr);
    return editor;
}

void write(const std::string& text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

} // namespace

class LineEditor::Implementation
{
public:
    Implementation(Helper helper, const std::string& historyFile);

    Typed read(const std::string& prompt);
    void print(const std::string& text);

private:
    static Implementation& of(EditLine* editor);
    static wchar_t* prompt(EditLine* editor);
    static int nextLetter(EditLine* editor, wchar_t* letter);
    static unsigned char complete(EditLine* editor, int key);
    static unsigned char explain(EditLine* editor, int key);

    void bindKeys();

    template <typename Result, typename Step>
    Result guard(Result otherwise, const Step& step);
    bool waitForLetter(wchar_t& letter);
    void stop();
    void goOn();
    std::string takeQueue();

    History m_history;
    Keyboard m_keyboard;
    std::unique_ptr<EditLine, Close> m_editor;
    ShownLine m_shown;
    HelperKeys m_keys;

    bool m_isInterrupted = false;
    std::exception_ptr m_failure;

    std::mutex m_mutex; ///< of what print() uses
    bool m_isTyping = false;
    std::string m_queue;
};

LineEditor::Implementation::Implementation(Helper helper, const std::string& historyFile)
    : m_history(historyFile), m_editor(openEditor()), m_shown(m_editor.get()), m_keys(std::move(helper), m_shown)
{
    EditLine* const editor = m_editor.get();
    el_set(editor, EL_CLIENTDATA, this);
    el_set(editor, EL_GETCFN, &Implementation::nextLetter);
    el_wset(editor, EL_PROMPT_ESC, &Implementation::prompt, EscapeMark);
    m_history.connect(editor);
    bindKeys();
}

void LineEditor::Implementation::bindKeys()
{
    using Function = unsigned char (*)(EditLine*, int);
    EditLine* const editor = m_editor.get();
    const Function completeKey = &Implementation::complete;
    const Function explainKey = &Implementation::explain;
    // Wide: libedit copies narrow names and never frees them.
    el_wset(editor, EL_ADDFN, L"node-complete", L"Complete the word", completeKey);
    el_wset(editor, EL_ADDFN, L"node-explain", L"Tell what may come next", explainKey);
    el_set(editor, EL_EDITOR, "emacs");
    el_set(editor, EL_BIND, "^R", "em-inc-search-prev", nullptr);
    el_set(editor, EL_BIND, "^W", "ed-delete-prev-word", nullptr);
    el_source(editor, nullptr);
    // Behind the user's file: one that chooses other keys has reset these two.
    el_set(editor, EL_BIND, "^I", "node-complete", nullptr);
    el_set(editor, EL_BIND, "?", "node-explain", nullptr);
}

LineEditor::Typed LineEditor::Implementation::read(const std::string& prompt)
{
    m_shown.setPrompt(prompt);
    m_isInterrupted = false;
    m_keys.begin();
    const Keyboard::Line untilReturn(m_keyboard);
    // libedit alone does this behind its prompt: what is typed at once would be shown twice.
    el_set(m_editor.get(), EL_PREP_TERM, 1);
    {
        const std::lock_guard lock(m_mutex);
        m_isTyping = true;
    }
    int size = 0;
    const wchar_t* const typed = el_wgets(m_editor.get(), &size);
    const bool hasEnded = typed == nullptr && !m_isInterrupted;
    {
        const std::lock_guard lock(m_mutex);
        m_isTyping = false;
        write((hasEnded ? "\n" : "") + std::exchange(m_queue, {}));
    }
    if (m_failure)
    {
        std::rethrow_exception(std::exchange(m_failure, nullptr));
    }
    if (typed == nullptr)
    {
        return {hasEnded ? Ending::End : Ending::Interrupted, ""};
    }
    std::string line = toBytes(typed);
    line.resize(line.find_last_not_of("\r\n") + 1);
    m_history.add(line);
    return {Ending::Line, line};
}

void LineEditor::Implementation::print(const std::string& text)
{
    const std::lock_guard lock(m_mutex);
    if (!m_isTyping)
    {
        write(text);
    }
    else if (!text.empty())
    {
        m_queue += text + (text.ends_with('\n') ? "" : "\n");
        m_keyboard.wake();
    }
}

LineEditor::Implementation& LineEditor::Implementation::of(EditLine* editor)
{
    void* implementation = nullptr;
    el_get(editor, EL_CLIENTDATA, &implementation);
    return *static_cast<Implementation*>(implementation);
}

wchar_t* LineEditor::Implementation::prompt(EditLine* editor)
{
    return of(editor).m_shown.prompt();
}

int LineEditor::Implementation::nextLetter(EditLine* editor, wchar_t* letter)
{
    Implementation& self = of(editor);
    return self.guard(-1, [&] { return self.waitForLetter(*letter) ? 1 : -1; });
}

unsigned char LineEditor::Implementation::complete(EditLine* editor, int /*key*/)
{
    Implementation& self = of(editor);
    return self.guard<unsigned char>(CC_NORM, [&] { return self.m_keys.complete(); });
}

unsigned char LineEditor::Implementation::explain(EditLine* editor, int /*key*/)
{
    Implementation& self = of(editor);
    return self.guard<unsigned char>(CC_NORM, [&] { return self.m_keys.explain(); });
}

/// Nothing may be thrown through libedit: it waits until the line has been left, which it is at once.
template <typename Result, typename Step>
Result LineEditor::Implementation::guard(Result otherwise, const Step& step)
{
    if (m_failure)
    {
        return otherwise;
    }
    try
    {
        return step();
    }
    catch (...)
    {
        m_failure = std::current_exception();
        return otherwise;
    }
}

bool LineEditor::Implementation::waitForLetter(wchar_t& letter)
{
    for (;;)
    {
        switch (m_keyboard.wait(letter))
        {
        case Keyboard::Event::Letter:
            return true;
        case Keyboard::Event::Interrupted:
            m_isInterrupted = true;
            m_shown.printBehind("^C\n");
            return false;
        case Keyboard::Event::Resized:
            m_shown.resize();
            break;
        case Keyboard::Event::Stopping:
            stop();
            break;
        case Keyboard::Event::Continued:
            goOn();
            break;
        case Keyboard::Event::Woken:
            m_shown.printAbove(takeQueue());
            break;
        case Keyboard::Event::End:
            return false;
        }
    }
}

/// Whoever has the terminal meanwhile finds it as it was.
void LineEditor::Implementation::stop()
{
    m_shown.printBehind("\n");
    std::fflush(stdout);
    el_set(m_editor.get(), EL_PREP_TERM, 0);
    m_keyboard.stop();
    goOn();
}

/// The terminal may have been left in any state. libedit does not touch it where it believes to have done so already.
void LineEditor::Implementation::goOn()
{
    el_set(m_editor.get(), EL_PREP_TERM, 0);
    el_set(m_editor.get(), EL_PREP_TERM, 1);
    std::fputc('\r', stdout);
    m_shown.draw();
}

std::string LineEditor::Implementation::takeQueue()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_queue, {});
}

LineEditor::LineEditor(Helper helper, const std::string& historyFile)
    : m_implementation(std::make_unique<Implementation>(std::move(helper), historyFile))
{
}

LineEditor::~LineEditor() = default;

LineEditor::Typed LineEditor::read(const std::string& prompt)
{
    return m_implementation->read(prompt);
}

void LineEditor::print(const std::string& text)
{
    m_implementation->print(text);
}

} // namespace node::terminal
