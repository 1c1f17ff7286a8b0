#include "node/cli/RecordingReader.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <system_error>

#include <fmt/format.h>

#include "node/output/Json.h"
#include "node/wording/InputError.h"
#include "node/wording/Number.h"

namespace node::cli
{

namespace
{

using nlohmann::ordered_json;
using wording::InputError;

/// An argument that is no UTF-8, from its bytes.
std::string argumentOf(const std::string& digits)
{
    const auto bytes = wording::parseBytes(digits, digits.size() / 2);
    if (!bytes)
    {
        throw std::runtime_error(wording::quoted(digits));
    }
    return {bytes->begin(), bytes->end()};
}

std::vector<std::string> argumentsOf(const ordered_json& document)
{
    auto arguments = document.at("arguments").get<std::vector<std::string>>();
    const auto bytes = document.find("arguments_hex");
    for (std::size_t i = 0; bytes != document.end() && i < arguments.size(); ++i)
    {
        const ordered_json& digits = bytes->at(i);
        arguments[i] = digits.is_null() ? arguments[i] : argumentOf(digits);
    }
    return arguments;
}

radio::Ticks timeOf(const ordered_json& document)
{
    constexpr double Longest_s = 1e9; // beyond what anybody waits for
    const double time_s = document.at("time_s");
    if (time_s < 0.0 || time_s > Longest_s)
    {
        throw std::runtime_error(fmt::format("time_s {}", time_s));
    }
    return radio::Ticks(std::llround(time_s * radio::Ticks::period::den));
}

/// Sees that firstDifference() finds what it reads.
void expectAnswer(const ordered_json& document)
{
    for (const char* const member : {"status", "result", "error"})
    {
        document.at(member);
    }
    for (const char* const member : {"report", "report_hex"})
    {
        document.value(member, "");
    }
    for (const ordered_json& message : document.at("trace").get<std::vector<ordered_json>>())
    {
        message.at("text");
    }
}

Entry toEntry(const ordered_json& document)
{
    Entry entry;
    if (document.contains("recording"))
    {
        if (document.at("recording") != RecordingVersion)
        {
            throw std::runtime_error(fmt::format("recording {}", document.at("recording").dump()));
        }
        const ordered_json& scenario = document.at("scenario");
        entry.beginning = {scenario.at("file"), scenario.at("text"),
                           document.at("trace_levels").get<std::map<std::string, VemTraceLevel>>()};
        return entry;
    }
    entry.time = timeOf(document);
    entry.words = argumentsOf(document);
    entry.words.insert(entry.words.begin(), document.at("command").get<std::string>());
    if (!document.contains("earlier"))
    {
        expectAnswer(document);
        entry.answer = document;
    }
    return entry;
}

/// Why a line does not fit.
std::string reasonOf(const std::exception& error)
{
    if (dynamic_cast<const ordered_json::parse_error*>(&error) != nullptr)
    {
        return "no JSON";
    }
    const std::string text = error.what();
    const bool isOfLibrary = dynamic_cast<const ordered_json::exception*>(&error) != nullptr;
    return isOfLibrary ? text.substr(text.find("] ") + 2) : text; // it begins with the library's "[name.number] "
}

/// The texts' first line that differs, with its end: "line 3: found ..., recorded ...".
std::string differingLine(const std::string& found, const std::string& recorded)
{
    const auto end = std::min(found.size(), recorded.size());
    const auto place = static_cast<std::size_t>(
        std::mismatch(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(end), recorded.begin()).first -
        found.begin());
    const auto line = std::count(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(place), '\n') + 1;
    const auto lineAt = [place](const std::string& text)
    {
        const auto begin = place == 0 ? 0 : text.rfind('\n', place - 1) + 1;
        const auto lineEnd = std::min(text.find('\n', begin), text.size());
        return wording::quoted(text.substr(begin, lineEnd - begin + 1));
    };
    return fmt::format("line {}: found {}, recorded {}", line, lineAt(found), lineAt(recorded));
}

/// Trace messages without what may differ. Their time is the command's, which is the same.
ordered_json comparable(ordered_json trace)
{
    for (ordered_json& message : trace)
    {
        message.erase("line");
        message.erase("time_s");
    }
    return trace;
}

} // namespace

RecordingReader::RecordingReader(const std::string& file) : m_name(file), m_file(file, std::ios::binary)
{
    constexpr const char* Expected = "a file that \"record\" wrote";
    const bool isEmpty = m_file.peek() == std::ifstream::traits_type::eof();
    if (!m_file.is_open() || m_file.bad())
    {
        throw InputError(file, wording::foundInsteadOf("file", {errno, std::generic_category()}), Expected);
    }
    if (isEmpty)
    {
        throw InputError(file, "nothing", Expected);
    }
    std::error_code unknown; // a pipe has no size
    m_size = static_cast<double>(std::filesystem::file_size(file, unknown));
}

std::optional<Entry> RecordingReader::next()
{
    std::string line;
    if (!std::getline(m_file, line))
    {
        if (m_file.bad())
        {
            throw InputError(m_name, "it unreadable", "a file that \"record\" wrote");
        }
        return std::nullopt;
    }
    ++m_line;
    m_read += static_cast<double>(line.size() + 1);
    try
    {
        Entry entry = toEntry(ordered_json::parse(line));
        if (m_line == 1 && !entry.beginning)
        {
            throw std::runtime_error("a command");
        }
        entry.line = m_line;
        return entry;
    }
    catch (const std::exception& error)
    {
        throw InputError(fmt::format("{}:{}", m_name, m_line), reasonOf(error), "what \"record\" writes there");
    }
}

double RecordingReader::share() const
{
    return std::min(m_read / m_size, 1.0);
}

std::string firstDifference(const output::Answer& answer, const nlohmann::ordered_json& recorded)
{
    const ordered_json found = output::toJson(answer);
    for (const char* const member : {"status", "result", "error"})
    {
        if (found.at(member) != recorded.at(member))
        {
            return fmt::format("{}: found {}, recorded {}", member, found.at(member).dump(),
                               recorded.at(member).dump());
        }
    }
    for (const char* const member : {"report", "report_hex"})
    {
        const std::string foundText = found.value(member, "");
        const std::string recordedText = recorded.value(member, "");
        if (foundText != recordedText)
        {
            return fmt::format("{}, {}", member, differingLine(foundText, recordedText));
        }
    }
    const ordered_json foundTrace = comparable(found.at("trace"));
    const ordered_json recordedTrace = comparable(recorded.at("trace"));
    if (foundTrace != recordedTrace)
    {
        return fmt::format("trace: found {}, recorded {}", foundTrace.dump(), recordedTrace.dump());
    }
    return "";
}

} // namespace node::cli
