#pragma once

#include <clocale>
#include <string>

/// The "C" locale, in which no text outside ASCII converts, until the end of the scope.
class AsciiLocale
{
public:
    AsciiLocale()
        : m_before(std::setlocale(LC_CTYPE, nullptr))
    {
        std::setlocale(LC_CTYPE, "C");
    }
    ~AsciiLocale() { std::setlocale(LC_CTYPE, m_before.c_str()); }
    AsciiLocale(AsciiLocale const&) = delete;
    AsciiLocale& operator=(AsciiLocale const&) = delete;

private:
    std::string m_before;
};
