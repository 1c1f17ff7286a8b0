#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "node/output/Json.h"
#include "node/startup/Node.h"
#include "support/AnswerSchema.h"

using node::report::fieldsOf;

namespace
{

/// The document that the page shows.
std::string example()
{
    std::ifstream page(KEL_SOURCE_DIR "/docs/json.md");
    std::string text;
    bool inside = false;
    for (std::string line; std::getline(page, line);)
    {
        if (line.starts_with("```"))
        {
            inside = line == "```json";
        }
        else if (inside)
        {
            text += line + "\n";
        }
    }
    return text;
}

/// What comes of "getXpicStatus 1", the first command of a node.
node::output::Answer xpicStatus()
{
    node::startup::Node node;
    node::commands::Outcome outcome;
    outcome.result = node.commands()->getXpicStatus(1, outcome.output);
    outcome.fields = fieldsOf(outcome.output);

    node::output::Answer answer;
    answer.command = "getXpicStatus";
    answer.arguments = {"1"};
    answer.channel = 1;
    answer.outcome = outcome;
    return answer;
}

TEST(JsonPageTest, ShowsTheDocumentOfACommand)
{
    EXPECT_EQ(node::output::toJson(xpicStatus()).dump(4) + "\n", example());
}

TEST(JsonPageTest, ShowsADocumentThatFitsTheSchema)
{
    EXPECT_TRUE(answer_schema::accepts(nlohmann::ordered_json::parse(example())));
}

} // namespace
