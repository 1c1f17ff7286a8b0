#pragma once

#include <locale>
#include <string>

#include <gtest/gtest.h>

/// `text` with the value behind `label` changed: the old one must stand there, the label must stand there once.
inline std::string replaced(std::string text, const std::string& label, const std::string& from, const std::string& to)
{
    const auto place = text.find(label + from);
    EXPECT_NE(std::string::npos, place) << label << from;
    EXPECT_EQ(std::string::npos, text.find(label + from, place + 1)) << label << from;
    return place == std::string::npos ? text : text.replace(place + label.size(), from.size(), to);
}

/// Makes a locale that groups digits the process's own, for as long as the object lives.
class GroupingLocale
{
public:
    GroupingLocale() : m_before(std::locale::global(std::locale(std::locale::classic(), new Digits)))
    {
    }

    ~GroupingLocale()
    {
        std::locale::global(m_before);
    }

    GroupingLocale(const GroupingLocale&) = delete;
    GroupingLocale& operator=(const GroupingLocale&) = delete;

private:
    struct Digits : std::numpunct<char>
    {
        char do_thousands_sep() const override
        {
            return '\'';
        }

        std::string do_grouping() const override
        {
            return "\3";
        }
    };

    std::locale m_before;
};
