#include <functional>
#include <iterator>
#include <limits>
#include <map>
#include <regex>
#include <set>
#include <tuple>

#include "module/ModuleTest.h"
#include "module/Operations.h"
#include "support/PageTable.h"

// docs/integration.md lists every message with how it is written, every service with the commands that fail with it and
// the first code that means a failure, and what comes of missing controllers. Its tables are held against what the
// module does while one service after the other fails.

namespace
{

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;
using Commands = IRlbspKelApi::KelDebugCmdCallback;

using Message = std::tuple<std::string, std::string, std::string, std::string>; ///< channel, function, style, text
using Failure = std::tuple<std::string, std::string, std::int32_t>;             ///< service, command, first code

constexpr auto Page = "docs/integration.md";

/// A number at the end of a cell, such as "`resultCode` 0x8000".
std::int32_t numberOf(const std::string& cell)
{
    return std::stoi(cell.substr(cell.rfind(' ') + 1), nullptr, 0);
}

std::set<Message> listedMessages()
{
    std::set<Message> messages;
    for (const TableRow& row : tableOf(Page, "## Messages in the trace", "Channel"))
    {
        for (const std::string& function : namesIn(row.at(1)))
        {
            messages.emplace(namesIn(row.at(0)).at(0), function, row.at(2), namesIn(row.at(3)).at(0));
        }
    }
    return messages;
}

std::set<Failure> listedFailures()
{
    std::set<Failure> failures;
    for (const TableRow& row : tableOf(Page, "## When a service has failed", "Service"))
    {
        for (const std::string& command : namesIn(row.at(1)))
        {
            failures.emplace(namesIn(row.at(0)).at(0), command, numberOf(row.at(2)));
        }
    }
    return failures;
}

/// The page's name for a logged call: "IDpdControllerSplit_1.stop()" is one of IDpdControllerSplit::stop.
std::string serviceOf(const std::string& call)
{
    return std::regex_replace(call.substr(0, call.find('(')), std::regex(R"((_\d)?\.)"), "::");
}

/// The page's word for how a message was written.
std::string styleOf(const doubles::TraceMessage& message)
{
    const bool endsLine = message.text.ends_with('\n');
    if (message.completion == "flush")
    {
        return endsLine ? "line" : "flushed";
    }
    if (message.completion == "end")
    {
        return message.data.size() == 3 && !endsLine ? "buffer" : "another buffer";
    }
    return endsLine ? "line without a flush" : "bare";
}

/// The function in a message's header; the whole place where the file is another one than the page says.
std::string functionOf(const doubles::TraceMessage& message)
{
    const std::string file = doubles::placeIn("");
    if (message.place == "(empty)")
    {
        return "none";
    }
    return message.place.starts_with(file) ? message.place.substr(file.size()) : message.place;
}

class IntegrationPageTest : public ModuleTest
{
protected:
    /// For each service, what makes it answer a code.
    std::vector<std::function<void(std::int32_t)>> services()
    {
        std::vector<std::function<void(std::int32_t)>> all;
        for (kel_top_api::BaseResponse* const response : apiResponses())
        {
            all.emplace_back([response](std::int32_t code) { doubles::answer(*response, code, "TEXT"); });
        }
        all.emplace_back([this](std::int32_t code) { dpd1->result = static_cast<EDPDResult>(code); });
        all.emplace_back([this](std::int32_t code) { modemStatus.result = {code, "TEXT"}; });
        all.emplace_back([this](std::int32_t code) { nearEnd.result = {code, "TEXT"}; });
        return all;
    }

    /// Carries out every operation. The commands that failed, each with the service that it called last.
    std::map<std::string, std::string> failingCommands()
    {
        std::map<std::string, std::string> failing;
        for (const auto& operation : operations<Commands>())
        {
            doubles::calls().clear();
            Output output;
            const int result = operation.run(commands(), output);
            // One of them answers 0 in every case, and tells of its failure in the report.
            if (result != 0 || output.report == "Data could not be retrieved!")
            {
                failing[operation.name] = serviceOf(calls().back());
            }
        }
        return failing;
    }

    /// Takes what was traced so far, as the page writes it.
    void collect()
    {
        for (const doubles::TraceMessage& message : messages())
        {
            EXPECT_EQ(1, message.level) << message;
            std::string text = message.text;
            text.erase(text.find_last_not_of('\n') + 1);
            text = std::regex_replace(text, std::regex("32768"), "CODE");
            m_traced.emplace(message.channel, functionOf(message), styleOf(message), text);
        }
        doubles::trace().messages.clear();
    }

    std::set<Message> m_traced;
};

TEST_F(IntegrationPageTest, ListsEveryMessageAndNoOther)
{
    for (const std::string name : {"IRlbspKelApi", "IDpdControllerSplit_1", "IDpdControllerSplit_2"})
    {
        const auto entry = interfaces().extract(name);
        start(2);
        collect();
        interfaces().insert({entry.key(), entry.mapped()});
    }
    start(2);
    for (const auto& answer : services())
    {
        answer(0x8000);
        failingCommands();
        collect();
        answer(0);
    }
    EXPECT_EQ(listedMessages(), m_traced);
}

TEST_F(IntegrationPageTest, SaysWhatChannelsAndMessagesHaveInCommon)
{
    EXPECT_THAT(doubles::trace().created, Each(Pair(::testing::_, 3)));
    std::ifstream page(std::string(KEL_SOURCE_DIR "/") + Page);
    const std::string text{std::istreambuf_iterator<char>(page), {}};
    EXPECT_THAT(text, HasSubstr("Both channels are made with level 3, and every message has level 1."));
    std::string file = doubles::placeIn("");
    file.pop_back();
    EXPECT_THAT(text, HasSubstr("`" + file + "`, without an ending"));
}

TEST_F(IntegrationPageTest, ListsEveryServiceWithTheCommandsThatFailWithItAndFromWhichCode)
{
    std::set<Failure> found;
    for (const auto& answer : services())
    {
        for (const std::int32_t success : {-1, std::numeric_limits<std::int32_t>::min()})
        {
            answer(success);
            EXPECT_THAT(failingCommands(), IsEmpty());
        }
        for (const std::int32_t first : {1, 0x8000})
        {
            answer(first - 1);
            const auto before = failingCommands();
            answer(first);
            for (const auto& [command, service] : failingCommands())
            {
                if (!before.contains(command))
                {
                    found.emplace(service, command, first);
                }
            }
        }
        answer(0);
    }
    EXPECT_EQ(listedFailures(), found);
}

TEST_F(IntegrationPageTest, LeavesOutTheServicesThatCannotFailAlone)
{
    std::set<std::string> unlisted;
    for (const auto& operation : operations<Commands>())
    {
        doubles::calls().clear();
        Output output;
        operation.run(commands(), output);
        for (const std::string& call : calls())
        {
            unlisted.insert(serviceOf(call));
        }
    }
    for (const auto& [service, command, first] : listedFailures())
    {
        unlisted.erase(service);
    }
    EXPECT_THAT(unlisted, ElementsAre("IDpdControllerSplit::getStartParameter", "ITiGetDspModemStatus::toString"));
}

TEST_F(IntegrationPageTest, SaysForWhichChannelsPredistortionWorks)
{
    const auto rows = tableOf(Page, "### Predistortion controllers", "Channels told");
    ASSERT_EQ(6U, rows.size());
    for (const TableRow& row : rows)
    {
        const bool any = row.at(0) == "any other number";
        for (const int told : any ? std::vector{0, 3, -1} : std::vector{numberOf(row.at(0))})
        {
            interfaces() = {
                {"IRlbspKelApi", boardSupport}, {"IDpdControllerSplit_1", dpd1}, {"IDpdControllerSplit_2", dpd2}};
            for (const std::string& missing : namesIn(row.at(1)))
            {
                interfaces().erase(missing);
            }
            EXPECT_EQ(numberOf(row.at(2)), start(told)) << row.at(0) << ", " << row.at(1);
            const std::string working = row.at(3).substr(0, row.at(3).find(':'));
            for (const RadioChannel channel : {1U, 2U})
            {
                const bool works = working.find(std::to_string(channel)) != std::string::npos;
                EXPECT_EQ(works ? 0 : 1, commands().stopDpd(channel)) << row.at(0) << ", " << row.at(1);
            }
        }
    }
}

} // namespace
