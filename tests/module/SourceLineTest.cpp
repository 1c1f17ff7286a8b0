#include <fstream>

#include "module/ModuleTest.h"
#include "module/Operations.h"

using doubles::TraceMessage;
using ::testing::HasSubstr;
using Callback = IRlbspKelApi::KelDebugCmdCallback;

namespace
{

/// Readers of the trace open the source at the line that a message names.
class SourceLineTest : public ModuleTest
{
protected:
    SourceLineTest()
    {
        std::ifstream source(KEL_SOURCE_DIR "/src/Device/KelDebugCmd/private/KelDebugCmd.cpp");
        for (std::string line; std::getline(source, line);)
        {
            lines.push_back(line);
        }
    }

    /// The statement that `message` names, after a look at the function that it stands in.
    std::string statementOf(const TraceMessage& message, const std::string& function) const
    {
        const auto number = static_cast<std::size_t>(message.line);
        if (number == 0 || number > lines.size())
        {
            return "no line of the source";
        }
        auto start = number - 1;
        while (start > 0 && !lines[start].starts_with("{"))
        {
            --start;
        }
        EXPECT_THAT(lines[start - 1], HasSubstr("KelDebugCmd::" + function + "("));
        return lines[number - 1];
    }

    std::vector<std::string> lines;
};

TEST_F(SourceLineTest, FailedCommandNamesTheStatementThatTracesIt)
{
    failAllServices();
    int named = 0;
    for (const auto& operation : operations<Callback>())
    {
        doubles::trace().messages.clear();
        Output output;
        operation.run(commands(), output);
        for (const TraceMessage& message : messages())
        {
            if (message.place == "(empty)")
            {
                EXPECT_EQ(0, message.line) << operation.name;
                continue;
            }
            EXPECT_THAT(statementOf(message, operation.name), HasSubstr("here()")) << operation.name;
            ++named;
        }
    }
    EXPECT_EQ(13, named); // all but the two without a place and the XPIC status, which traces nothing
}

TEST_F(SourceLineTest, FailedStartUpNamesTheStatementForEachInterface)
{
    interfaces().erase("IDpdControllerSplit_2");
    start(2);
    interfaces().erase("IRlbspKelApi");
    start(2);
    ASSERT_EQ(2U, messages().size());
    EXPECT_THAT(statementOf(messages()[0], "onModuleInit"), HasSubstr("Error getting interface to "));
    EXPECT_THAT(statementOf(messages()[1], "onModuleInit"), HasSubstr("failed to get interface to"));
}

} // namespace
