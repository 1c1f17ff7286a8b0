#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "endtoend/Program.h"
#include "support/TemporaryFolder.h"

namespace
{

/// A run of a command that the module refuses, which it traces.
Finished refused(std::vector<std::string> options)
{
    options.insert(options.end(), {"setXpicPreamble", "1", "4"});
    Finished run = finish({.arguments = options});
    run.errors = withoutSourceLines(run.errors);
    return run;
}

const std::string Message = traced("setXpicPreamble", "preamble: found a number out of range, expected 0 to 3");
const std::string Failure = "kel-node: setXpicPreamble: failed\n";

TEST(TraceOptionsTest, ChannelsAreChosen)
{
    EXPECT_EQ(Message + Failure, refused({}).errors);
    EXPECT_EQ(Message + Failure, refused({"--trace", "KEL.KDC.Kel*"}).errors);
    EXPECT_EQ(Message + Failure, refused({"--trace", "KEL.*:1"}).errors);
    EXPECT_EQ(Failure, refused({"--trace", "KEL.*:0"}).errors);
    EXPECT_EQ(Failure, refused({"--trace", "KEL.KDC.Get*"}).errors);
}

TEST(TraceOptionsTest, AChannelThatTheNodeDoesNotHaveIsRefused)
{
    const Finished run = refused({"--trace", "KEL.absent"});
    EXPECT_EQ("kel-node: option --trace: found \"KEL.absent\", expected a pattern that fits a channel that "
              "\"listTraceLevels\" lists\n",
              run.errors);
    EXPECT_EQ(2, run.status);
}

TEST(TraceOptionsTest, MessagesAreWrittenToAFileToo)
{
    const TemporaryFolder folder;
    EXPECT_EQ(Message + Failure, refused({"--trace-file", folder.pathOf("trace")}).errors);
    const std::string written = folder.read("trace");
    const std::string begin = R"({"time_s":0.0,"channel":"KEL.KDC.KelDebugCmd","level":1,)"
                              R"("file":"src/Device/KelDebugCmd/private/KelDebugCmd","line":)";
    const std::string end = R"(,"function":"setXpicPreamble",)"
                            R"("text":"preamble: found a number out of range, expected 0 to 3"})"
                            "\n";
    EXPECT_TRUE(written.starts_with(begin)) << written;
    EXPECT_TRUE(written.ends_with(end)) << written;
}

TEST(TraceOptionsTest, AFileThatCannotBeMadeIsRefused)
{
    const Finished run = refused({"--trace-file", "/absent/trace"});
    EXPECT_EQ("kel-node: /absent/trace: found no such folder, expected a file to write\n", run.errors);
    EXPECT_EQ(2, run.status);
}

} // namespace
