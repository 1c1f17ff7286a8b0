#pragma once

#include <map>
#include <string>

#include "framework/CModuleManager.h"
#include "framework/InterfaceBroker.h"
#include "fuzz/Target.h"
#include "node/trace/TraceLibrary.h"

namespace fuzz
{

/// The process's own part of a node: what one input changes there, the next one must not meet.
class NodeAround
{
public:
    NodeAround() = default;
    NodeAround(const NodeAround&) = delete;
    NodeAround& operator=(const NodeAround&) = delete;

    ~NodeAround()
    {
        for (const auto& [channel, level] : m_levels)
        {
            node::trace::setLevel(channel, level);
        }
    }

    /// @throws Finding where a node that has gone left something behind
    static void expectNothingThere()
    {
        expect(InterfaceBroker::getInstance().interfaces().empty(), "no interface stays in the broker");
        expect(CModuleManager::GetInstance().modules().empty(), "no module stays registered");
    }

private:
    std::map<std::string, VemTraceLevel> m_levels = node::trace::levels();
};

/// Keeps trace messages as lines while it exists.
class KeptTrace
{
public:
    KeptTrace()
        : m_before(node::trace::setSink([this](const node::trace::Message& message) { lines += toLine(message); }))
    {
    }

    KeptTrace(const KeptTrace&) = delete;
    KeptTrace& operator=(const KeptTrace&) = delete;

    ~KeptTrace()
    {
        node::trace::completeOpenMessage();
        node::trace::setSink(m_before);
    }

    std::string lines;

private:
    node::trace::Sink m_before;
};

} // namespace fuzz
