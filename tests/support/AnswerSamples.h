#pragma once

#include <string>
#include <vector>

#include "node/output/Answer.h"

/// Answers of every shape.
namespace answer_samples
{

/// Every member holds something.
node::output::Answer whole();

/// As whole(), with text that is not UTF-8 in every text.
node::output::Answer wholeOfBytes();

/// No member holds more than it must.
node::output::Answer bare();

struct Sample
{
    std::string name;
    node::output::Answer answer;
};

std::vector<Sample> all();

} // namespace answer_samples
