#pragma once

#include <clocale>
#include <cstdlib>
#include <locale>
#include <string>

#include <gtest/gtest.h>

/// Numbers as many people write them: 1.234.567,5.
class CommaPunctuation : public std::numpunct<char>
{
    char do_decimal_point() const override
    {
        return ',';
    }

    char do_thousands_sep() const override
    {
        return '.';
    }

    std::string do_grouping() const override
    {
        return "\3";
    }

    std::string do_truename() const override
    {
        return "wahr";
    }

    std::string do_falsename() const override
    {
        return "falsch";
    }
};

/// A process whose global locales write numbers with commas and groups, for as long as the object lives.
class CommaLocale
{
public:
    CommaLocale()
        : m_cLocale(std::setlocale(LC_ALL, nullptr)),
          m_before(std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation)))
    {
        setenv("LOCPATH", KEL_LOCALES, 1);
        EXPECT_STREQ("de_DE.UTF-8", std::setlocale(LC_ALL, "de_DE.UTF-8"));
    }

    ~CommaLocale()
    {
        std::locale::global(m_before);
        std::setlocale(LC_ALL, m_cLocale.c_str());
        unsetenv("LOCPATH");
    }

    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

private:
    std::string m_cLocale;
    std::locale m_before;
};
