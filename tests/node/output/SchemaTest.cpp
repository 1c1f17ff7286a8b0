#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "node/output/Json.h"
#include "support/AnswerSamples.h"
#include "support/AnswerSchema.h"

using answer_schema::accepts;
using answer_schema::acceptsAt;
using nlohmann::json;
using nlohmann::ordered_json;
using node::output::toJson;

namespace
{

TEST(SchemaTest, AcceptsAnswersOfEveryShape)
{
    for (const auto& [name, answer] : answer_samples::all())
    {
        EXPECT_TRUE(accepts(toJson(answer))) << name;
    }
}

TEST(SchemaTest, AcceptsNothingButAnObject)
{
    for (const std::string text : {"null", "1", R"("text")", "[]", "{}"})
    {
        EXPECT_FALSE(accepts(ordered_json::parse(text))) << text;
    }
}

TEST(SchemaTest, HoldsTheBoundsOfNumbers)
{
    struct Row
    {
        std::string pointer;
        std::vector<std::string> within;
        std::vector<std::string> beyond;
    };
    const std::vector<std::string> wide = {"-2147483648", "2147483647"};
    const std::vector<std::string> tooWide = {"-2147483649", "2147483648", "1.5"};
    for (const Row& row : {Row{"/channel", {"0", "1", "4294967295"}, {"-1", "4294967296", "1.5"}},
                           {"/time_s", {"0", "0.1"}, {"-0.1"}},
                           {"/exit_status", {"0", "1", "2", "3"}, {"-1", "4", "0.5"}},
                           {"/result", {"0", "1"}, {"-1", "2", "0.5"}},
                           {"/trace/0/time_s", {"0", "0.1"}, {"-0.1"}},
                           {"/trace/0/level", wide, tooWide},
                           {"/trace/0/line", wide, tooWide}})
    {
        for (const std::string& number : row.within)
        {
            EXPECT_TRUE(acceptsAt(row.pointer, json::parse(number))) << row.pointer << " " << number;
        }
        for (const std::string& number : row.beyond)
        {
            EXPECT_FALSE(acceptsAt(row.pointer, json::parse(number))) << row.pointer << " " << number;
        }
    }
}

TEST(SchemaTest, HoldsTheWordsOfAnAnswer)
{
    for (const std::string word : {"done", "failed", "not understood", "not started"})
    {
        EXPECT_TRUE(acceptsAt("/status", word)) << word;
        EXPECT_FALSE(acceptsAt("/status", word + " ")) << word;
    }
    EXPECT_FALSE(acceptsAt("/schema", "kel-node/2"));
    EXPECT_FALSE(acceptsAt("/schema", "kel-node/11"));
}

TEST(SchemaTest, HoldsTheElementsOfLists)
{
    EXPECT_TRUE(acceptsAt("/arguments", {"", "text"}));
    EXPECT_TRUE(acceptsAt("/arguments_hex", {nullptr, "00ff"}));
    for (const std::string element : {"null", "1", "[]", "{}"})
    {
        EXPECT_FALSE(acceptsAt("/arguments", json::array({"text", json::parse(element)}))) << element;
        EXPECT_FALSE(acceptsAt("/fields", json::array({json::parse(element)}))) << element;
        EXPECT_FALSE(acceptsAt("/trace", json::array({json::parse(element)}))) << element;
    }
    for (const std::string element : {"1", "[]", "{}", R"("")", R"("text")", R"("0f0")", R"("0F")"})
    {
        EXPECT_FALSE(acceptsAt("/arguments_hex", json::array({nullptr, json::parse(element)}))) << element;
    }
}

TEST(SchemaTest, DescribesEveryMember)
{
    for (const std::string members :
         {"/properties", "/definitions", "/definitions/field/properties", "/definitions/message/properties"})
    {
        for (const auto& [name, schema] : answer_schema::document().at(json::json_pointer(members)).items())
        {
            const bool refersToOne = schema.contains("$ref");
            EXPECT_TRUE(refersToOne || !schema.value("description", "").empty()) << members << "/" << name;
        }
    }
}

} // namespace
