#include <algorithm>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/output/Json.h"
#include "support/AnswerSamples.h"
#include "support/AnswerSchema.h"

using answer_schema::accepts;
using answer_schema::acceptsAt;
using nlohmann::ordered_json;
using node::output::toJson;
using ::testing::ElementsAreArray;

namespace
{

const std::string InAnswer;
const std::string InField = "/fields/0";
const std::string InMessage = "/trace/0";

/// What a member may hold, in the order of Probes.
struct Member
{
    std::string in; ///< of the answer: a JSON pointer
    std::string name;
    bool required;
    std::vector<std::string> accepted;
};

std::ostream& operator<<(std::ostream& out, const Member& member)
{
    return out << member.in << "/" << member.name;
}

const std::vector<std::string> Probes = {"null",      "true",    "-1",       "1",       "1.5", R"("")",
                                         R"("text")", R"("0f")", R"("0f0")", R"("0F")", "[]",  "{}"};

const std::vector<std::string> Nothing = {};
const std::vector<std::string> AnyText = {R"("")", R"("text")", R"("0f")", R"("0f0")", R"("0F")"};
const std::vector<std::string> SomeText = {R"("text")", R"("0f")", R"("0f0")", R"("0F")"};
const std::vector<std::string> SomeTextOrNull = {"null", R"("text")", R"("0f")", R"("0f0")", R"("0F")"};
const std::vector<std::string> Hex = {R"("0f")"};

/// In the order of the documents.
const std::vector<Member> Members = {
    {InAnswer, "schema", true, Nothing},
    {InAnswer, "place", true, SomeTextOrNull},
    {InAnswer, "place_hex", false, Hex},
    {InAnswer, "command", true, AnyText},
    {InAnswer, "command_hex", false, Hex},
    {InAnswer, "arguments", true, {"[]"}},
    {InAnswer, "arguments_hex", false, Nothing},
    {InAnswer, "channel", true, {"null", "1"}},
    {InAnswer, "time_s", true, {"1", "1.5"}},
    {InAnswer, "status", true, Nothing},
    {InAnswer, "exit_status", true, {"1"}},
    {InAnswer, "result", true, {"null", "1"}},
    {InAnswer, "report", true, AnyText},
    {InAnswer, "report_hex", false, Hex},
    {InAnswer, "fields", true, {"[]"}},
    {InAnswer, "trace", true, {"[]"}},
    {InAnswer, "error", true, SomeTextOrNull},
    {InAnswer, "error_hex", false, Hex},
    {InField, "under", false, SomeText},
    {InField, "under_hex", false, Hex},
    {InField, "label", true, AnyText},
    {InField, "label_hex", false, Hex},
    {InField, "value", true, {"true", "-1", "1", "1.5", R"("")", R"("text")", R"("0f")", R"("0f0")", R"("0F")"}},
    {InField, "value_hex", false, Hex},
    {InField, "unit", false, SomeText},
    {InField, "unit_hex", false, Hex},
    {InMessage, "time_s", true, {"1", "1.5"}},
    {InMessage, "channel", true, AnyText},
    {InMessage, "channel_hex", false, Hex},
    {InMessage, "level", true, {"-1", "1"}},
    {InMessage, "file", true, SomeTextOrNull},
    {InMessage, "file_hex", false, Hex},
    {InMessage, "line", true, {"null", "-1", "1"}},
    {InMessage, "function", true, SomeTextOrNull},
    {InMessage, "function_hex", false, Hex},
    {InMessage, "text", true, AnyText},
    {InMessage, "text_hex", false, Hex},
};

ordered_json wholeDocument()
{
    return toJson(answer_samples::wholeOfBytes());
}

ordered_json& at(ordered_json& document, const std::string& pointer)
{
    return document[ordered_json::json_pointer(pointer)];
}

class SchemaMemberTest : public ::testing::TestWithParam<Member>
{
};

TEST_P(SchemaMemberTest, MayBeMissingWhereItIsNotRequired)
{
    ordered_json document = wholeDocument();
    at(document, GetParam().in).erase(GetParam().name);
    EXPECT_EQ(!GetParam().required, accepts(document));
}

TEST_P(SchemaMemberTest, HoldsNoValueOfAnotherKind)
{
    std::vector<std::string> accepted;
    std::copy_if(Probes.begin(), Probes.end(), std::back_inserter(accepted),
                 [](const std::string& probe)
                 { return acceptsAt(GetParam().in + "/" + GetParam().name, ordered_json::parse(probe)); });
    EXPECT_THAT(accepted, ElementsAreArray(GetParam().accepted));
}

TEST_P(SchemaMemberTest, IsUnknownUnderAnotherName)
{
    EXPECT_FALSE(acceptsAt(GetParam().in + "/" + GetParam().name + "s", "text"));
}

INSTANTIATE_TEST_SUITE_P(Members, SchemaMemberTest, ::testing::ValuesIn(Members));

TEST(SchemaMembersTest, AreThoseOfTheDocuments)
{
    for (const std::string& in : {InAnswer, InField, InMessage})
    {
        std::vector<std::string> names;
        for (const Member& member : Members)
        {
            if (member.in == in)
            {
                names.push_back(member.name);
            }
        }
        std::vector<std::string> found;
        ordered_json document = wholeDocument();
        for (const auto& [name, value] : at(document, in).items())
        {
            found.push_back(name);
        }
        EXPECT_THAT(found, ElementsAreArray(names)) << in;
    }
}

} // namespace
