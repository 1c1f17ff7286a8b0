// Any text as a script for a started node: each line is answered once and whole, and alike each time.

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "fuzz/NodeAround.h"
#include "fuzz/Target.h"
#include "node/cli/Script.h"
#include "node/cli/Session.h"
#include "node/commands/Command.h"
#include "node/commands/Line.h"
#include "node/output/Json.h"
#include "node/output/TextOutput.h"
#include "node/wording/InputError.h"
#include "support/AnswerSchema.h"

namespace
{

using fuzz::expect;
using node::commands::Command;
using node::output::Answer;
using node::output::Status;
using node::radio::Ticks;

constexpr auto ScriptName = "input";
constexpr int WatchedRounds = 3;

using Words = std::vector<std::string>;

/// Which lines of an input are carried out. What leaves the process or takes as long as it likes is left out, as the
/// command table tells of it: files by name but tables, which are written into memory; more node time than a minute for
/// an input. A watch ends after a few rounds, as with Ctrl-C.
class Selection
{
public:
    /// The text with empty lines for those that are left out.
    std::string of(const std::string& text)
    {
        std::string kept;
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);)
        {
            kept += (selectsLine(line, kept.empty()) ? line : "") + "\n";
        }
        return kept;
    }

private:
    bool selectsLine(std::string line, bool first)
    {
        const std::string byteOrderMark = "\xEF\xBB\xBF";
        if (first && line.starts_with(byteOrderMark))
        {
            line.erase(0, byteOrderMark.size());
        }
        try
        {
            const Words words = node::commands::splitLine(line);
            return words.empty() || selects(words);
        }
        catch (const node::wording::InputError&)
        {
            return true; // to be refused
        }
    }

    /// @throws InputError for a command that there is not
    bool selects(const Words& words)
    {
        const auto& arguments = node::commands::commandNamed(words.front()).arguments;
        const bool holdsAnother = std::any_of(arguments.begin(), arguments.end(),
                                              [](const node::commands::Argument& argument)
                                              { return argument.extent == node::commands::Extent::Command; });
        return selectsAlone(words, 1) && (!holdsAnother || selectsHeld(words));
    }

    /// A command but for one that it may hold.
    /// @param times  how often it is carried out
    /// @throws InputError likewise
    bool selectsAlone(const Words& words, int times)
    {
        const Command& command = node::commands::commandNamed(words.front());
        for (const node::commands::Argument& argument : command.arguments)
        {
            const bool isTable = argument.form == node::commands::TableName::form();
            const bool readsScenario = argument.kind == node::commands::WordKind::Scenario;
            if ((argument.kind == node::commands::WordKind::File && !isTable) ||
                (readsScenario && std::any_of(words.begin(), words.end(), isFile)))
            {
                return false;
            }
        }
        const bool takesTime =
            !command.arguments.empty() && command.arguments.front().form == node::commands::Duration::form();
        return !takesTime || hasTimeFor(words, times);
    }

    /// Of the commands that a command may hold, wherever among its words they begin.
    bool selectsHeld(const Words& words)
    {
        for (auto begin = words.begin() + 1; begin != words.end(); ++begin)
        {
            try
            {
                if (!selectsAlone({begin, words.end()}, WatchedRounds))
                {
                    return false;
                }
            }
            catch (const node::wording::InputError&)
            {
                continue; // no command begins here
            }
        }
        return true;
    }

    /// Whether a word can name a file, and not a ready scenario.
    static bool isFile(const std::string& word)
    {
        return word.find('/') != std::string::npos || word.ends_with(node::scenario::FileExtension);
    }

    bool hasTimeFor(const Words& words, int times)
    {
        const auto word = std::find_if(words.begin() + 1, words.end(), [](const auto& each) { return each != "--"; });
        const auto time = word == words.end() ? std::nullopt : node::commands::Duration::parse(*word);
        const Ticks all = time ? time->ticks * times : Ticks(0);
        const bool enough = all <= m_left;
        m_left -= enough ? all : Ticks(0);
        return enough;
    }

    Ticks m_left = std::chrono::minutes(1);
};

/// How closely answers are looked at: documents and their schema take longer than all that is fuzzed.
enum class Look
{
    Whole,
    Documents,
    Places,
};

/// Looks at each answer, keeps it as a document, and hands it on.
class Examiner : public node::output::Output
{
public:
    Examiner(node::output::Output& next, Look look) : m_next(next), m_look(look)
    {
    }

    void trace(const node::output::TimedMessage& message) override
    {
        m_next.trace(message);
    }

    void show(const Answer& answer) override
    {
        examine(answer);
        m_next.show(answer);
    }

    void closeLine() override
    {
        m_next.closeLine();
    }

    bool good() const override
    {
        return m_next.good();
    }

    std::unique_ptr<Output> beginWatch(const node::commands::Watch& watch) override
    {
        return m_next.beginWatch(watch);
    }

    std::string documents; ///< a line each
    Status firstFailure = Status::Done;

private:
    void examine(const Answer& answer)
    {
        expect((answer.status == Status::Done) == answer.error.empty(), "what fails says why, and nothing else does",
               answer.error);
        expect(answer.outcome.has_value() || answer.status != Status::Done, "what is done has an outcome");
        if (!answer.place.empty())
        {
            examinePlace(answer);
        }
        if (m_look == Look::Places)
        {
            return;
        }
        const auto document = node::output::toJson(answer);
        const std::string line = node::output::toLine(document);
        expect(m_look != Look::Whole || answer_schema::accepts(document), "an answer is JSON that fits the schema",
               line);
        documents += line;
    }

    /// Lines of the script are answered once each, in their order.
    void examinePlace(const Answer& answer)
    {
        const std::string begin = fmt::format("{}:", ScriptName);
        expect(answer.place.starts_with(begin), "an answer names its line", answer.place);
        const int line = std::stoi(answer.place.substr(begin.size()));
        expect(line > m_line, "lines are answered once, in their order", answer.place);
        m_line = line;
        const std::string error = node::output::errorText(answer);
        expect(answer.error.empty() || error.starts_with(fmt::format("kel-node: {}: ", answer.place)),
               "an error begins with its place", error);
        firstFailure = firstFailure == Status::Done ? answer.status : firstFailure;
    }

    node::output::Output& m_next;
    Look m_look;
    int m_line = 0;
};

node::cli::Surroundings withoutFilesAndWaiting()
{
    node::cli::Surroundings surroundings;
    surroundings.create = [](const std::string&) { return std::make_unique<std::ostringstream>(); };
    surroundings.wait = [round = 0](std::chrono::milliseconds) mutable { return ++round % WatchedRounds == 0; };
    return surroundings;
}

struct Printed
{
    std::string documents;
    std::string text;
};

/// Carries out the script on a new node.
Printed carryOut(const std::string& script, Look look, const node::output::Look& screen = {})
{
    std::ostringstream output;
    std::ostringstream errors;
    const fuzz::NodeAround around;
    node::output::TextOutput text(output, errors, screen);
    Examiner examiner(text, look);
    {
        node::commands::NodeDesk desk;
        node::cli::Session session(desk, examiner, withoutFilesAndWaiting());
        session.start({});
        std::istringstream lines(script);
        const Status status = node::cli::runScript(session, lines, ScriptName, node::cli::AtFailure::GoOn);
        expect(status == examiner.firstFailure, "a script ends as its first line that failed");
    }
    fuzz::NodeAround::expectNothingThere();
    return {examiner.documents, output.str() + errors.str()};
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string script = Selection().of({data, data + size});
    const node::output::Look screen{true, true, true, [] { return node::terminal::Size{80, 24}; }, true, true};
    const Printed plain = carryOut(script, Look::Whole);
    const Printed again = carryOut(script, Look::Documents);
    fuzz::expectSame("the same lines have the same answers", plain.documents, again.documents);
    fuzz::expectSame("the same lines print the same", plain.text, again.text);
    carryOut(script, Look::Places, screen);
    return 0;
}
