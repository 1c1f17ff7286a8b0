#include <atomic>
#include <cstdint>
#include <functional>
#include <latch>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "module/Operations.h"
#include "node/services/FaultOf.h"
#include "node/startup/StartUpTest.h"

using node::startup::Node;

namespace
{

using Commands = IRlbspKelApi::KelDebugCmdCallback;

constexpr int ThreadsOfEachChannel = 3;
constexpr int RoundsOfEachThread = 100;
constexpr int RoundsOfEachChannel = ThreadsOfEachChannel * RoundsOfEachThread;

/// What an operation answers.
struct Answer
{
    int result = -1;
    Output output;

    bool operator==(const Answer&) const = default;
};

/// All operations at once on both channels, from many threads, of a node whose state they do not change: what would
/// change it is refused. So each answer is known beforehand, and each refusal traces the same message.
class CommandThreadsTest : public NodeStartUpTest
{
protected:
    using Lines = std::map<std::string, int>; ///< a message -> how often it came

    void SetUp() override
    {
        for (const char* const call :
             {"tiManageXpic", "criCalibrateDspPps", "criSetSourceDspPps", "criSetOutputModeDspPps",
              "IDpdControllerSplit.start", "IDpdControllerSplit.stop", "IDpdControllerSplit.setCoeffs"})
        {
            refuse(call);
        }
    }

    void TearDown() override
    {
        setLevels(3);
    }

    void refuse(const std::string& call)
    {
        m_node.faults().add(FaultOf(call).withText("refused: " + call));
    }

    /// Runs every operation again and again on many threads while `meanwhile` is called again and again.
    void runAllWhile(const std::function<void(int)>& meanwhile)
    {
        const std::vector<std::vector<Answer>> alone = {answersOf(1), answersOf(2)};
        node::trace::completeOpenMessage();
        m_tracedAlone = traced();
        recorder.messages.clear();
        for (const auto& planned : m_node.faults().list())
        {
            m_hitsAlone += planned.hits;
        }

        std::atomic<int> running = 2 * ThreadsOfEachChannel;
        std::atomic<int> otherAnswers = 0;
        std::latch start(2 * ThreadsOfEachChannel + 1);
        std::vector<std::jthread> threads;
        threads.reserve(2 * ThreadsOfEachChannel);
        for (int thread = 0; thread < 2 * ThreadsOfEachChannel; ++thread)
        {
            threads.emplace_back(
                [&, channel = static_cast<RadioChannel>(thread % 2 + 1)]
                {
                    start.arrive_and_wait();
                    for (int round = 0; round < RoundsOfEachThread; ++round)
                    {
                        otherAnswers += answersOf(channel) == alone[channel - 1] ? 0 : 1;
                    }
                    --running;
                });
        }
        start.arrive_and_wait();
        for (int i = 0; running > 0; ++i)
        {
            meanwhile(i);
        }
        threads.clear();
        EXPECT_EQ(0, otherAnswers) << "rounds with an answer that differs from that of a node at rest";
    }

    void expectEachCallHit()
    {
        std::uint64_t hits = 0;
        for (const auto& planned : m_node.faults().list())
        {
            EXPECT_EQ(planned.seen, planned.hits) << planned.fault.call->name;
            hits += planned.hits;
        }
        EXPECT_EQ(m_hitsAlone * (1 + RoundsOfEachChannel), hits);
    }

    void expectEachMessageAsOftenAsItsCommandFailed() const
    {
        Lines expected = m_tracedAlone;
        for (auto& [line, times] : expected)
        {
            times *= RoundsOfEachChannel;
        }
        EXPECT_EQ(expected, traced());
    }

    /// How often each message came while each operation ran once on each channel, and nothing else.
    const Lines& tracedAlone() const
    {
        return m_tracedAlone;
    }

    Lines traced() const
    {
        Lines lines;
        for (const std::string& line : recorder.lines())
        {
            ++lines[line];
        }
        return lines;
    }

    static void setLevels(VemTraceLevel level)
    {
        node::trace::setLevel("KEL.KDC.KelDebugCmd", level);
        node::trace::setLevel("KEL.KDC.GetCtStatusDebugCmd", level);
    }

private:
    std::vector<Answer> answersOf(RadioChannel channel)
    {
        std::vector<Answer> answers;
        for (const auto& operation : operations<Commands>())
        {
            Answer answer;
            answer.result = operation.runOn(*m_node.commands(), channel, answer.output);
            answers.push_back(answer);
        }
        return answers;
    }

    Node m_node;
    Lines m_tracedAlone;
    std::uint64_t m_hitsAlone = 0;
};

TEST_F(CommandThreadsTest, EveryAnswerIsTheOneOfANodeAtRest)
{
    runAllWhile([](int) { std::this_thread::yield(); });
    expectEachCallHit();
    EXPECT_EQ(10U, tracedAlone().size()) << "of each operation that commands the node";
    expectEachMessageAsOftenAsItsCommandFailed();
}

TEST_F(CommandThreadsTest, EveryCommandFailsAsOnANodeAtRest)
{
    for (const char* const call :
         {"criGetRadioChannelStatus", "ITiGetDspModemStatus.getDspModemStatus", "criGetCalibrationStatusDspPps",
          "criGetHopLengthTimeDspPps", "IDpdControllerSplit.getCoeffs"})
    {
        refuse(call);
    }
    runAllWhile([](int) { std::this_thread::yield(); });
    expectEachCallHit();
    EXPECT_EQ(15U, tracedAlone().size()) << "all but the canceller's status, which traces nothing";
    expectEachMessageAsOftenAsItsCommandFailed();
}

TEST_F(CommandThreadsTest, NoMessageIsLostWhileLevelsChangeAbove0)
{
    runAllWhile([](int i) { setLevels(i % 2 == 0 ? 1 : 3); });
    expectEachCallHit();
    expectEachMessageAsOftenAsItsCommandFailed();
}

TEST_F(CommandThreadsTest, MessagesAreWholeOrMissingWhileChannelsAreSilencedAndWoken)
{
    runAllWhile([](int i) { setLevels(i % 2 == 0 ? 0 : 3); });
    expectEachCallHit();
    for (const auto& [line, times] : traced())
    {
        ASSERT_TRUE(tracedAlone().contains(line)) << "torn: " << line;
        EXPECT_LE(times, tracedAlone().at(line) * RoundsOfEachChannel) << line;
    }
}

} // namespace
