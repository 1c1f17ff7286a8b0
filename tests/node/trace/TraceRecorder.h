#pragma once

#include <string>
#include <utility>
#include <vector>

#include "node/trace/TraceLibrary.h"

/// Stands in for the trace library's sink and keeps what it delivers. Look at it while no other thread writes.
class TraceRecorder
{
public:
    TraceRecorder()
        : m_before(node::trace::setSink([this](const node::trace::Message& message) { messages.push_back(message); }))
    {
    }

    ~TraceRecorder()
    {
        node::trace::setSink(std::move(m_before));
    }

    TraceRecorder(const TraceRecorder&) = delete;
    TraceRecorder& operator=(const TraceRecorder&) = delete;

    /// What was written, message by message.
    std::vector<std::string> texts() const
    {
        std::vector<std::string> texts;
        for (const auto& message : messages)
        {
            texts.push_back(message.text);
        }
        return texts;
    }

    /// The messages as lines.
    std::vector<std::string> lines() const
    {
        std::vector<std::string> lines;
        for (const auto& message : messages)
        {
            lines.push_back(toLine(message));
        }
        return lines;
    }

    std::vector<node::trace::Message> messages;

private:
    node::trace::Sink m_before;
};
