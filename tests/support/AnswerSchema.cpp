#include "support/AnswerSchema.h"

#include <fstream>
#include <memory>

#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validator.hpp>

#include "node/output/Json.h"
#include "support/AnswerSamples.h"

namespace answer_schema
{

namespace
{

using Adapter = valijson::adapters::NlohmannJsonAdapter;

const valijson::Schema& schema()
{
    static const auto parsed = []
    {
        auto made = std::make_unique<valijson::Schema>();
        valijson::SchemaParser(valijson::SchemaParser::kDraft7).populateSchema(Adapter(document()), *made);
        return made;
    }();
    return *parsed;
}

} // namespace

const nlohmann::json& document()
{
    static const auto parsed = []
    {
        std::ifstream file(KEL_SOURCE_DIR "/docs/answer-1.schema.json");
        return nlohmann::json::parse(file);
    }();
    return parsed;
}

bool accepts(const nlohmann::ordered_json& answer)
{
    // The validator reads documents of the other kind, and tells 1.0 from 1 only where types are strong.
    const nlohmann::json read = nlohmann::json::parse(answer.dump());
    valijson::Validator validator(valijson::Validator::kStrongTypes);
    return validator.validate(schema(), Adapter(read), nullptr);
}

bool acceptsAt(const std::string& pointer, const nlohmann::ordered_json& value)
{
    auto document = node::output::toJson(answer_samples::wholeOfBytes());
    document[nlohmann::ordered_json::json_pointer(pointer)] = value;
    return accepts(document);
}

} // namespace answer_schema
