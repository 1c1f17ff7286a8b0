#pragma once

#include <iosfwd>

#include "node/output/Output.h"

namespace node::output
{

/// Answers as JSON, a document on a line for each command. Errors and trace messages stand in the documents alone.
class JsonOutput : public Output
{
public:
    /// @param output  borrowed
    explicit JsonOutput(std::ostream& output);

    void trace(const TimedMessage& message) override;
    void show(const Answer& answer) override;
    void closeLine() override;
    bool good() const override;
    std::unique_ptr<Output> beginWatch(const commands::Watch& watch) override;

private:
    std::ostream& m_output;
};

} // namespace node::output
