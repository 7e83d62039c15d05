#include "common/SamplerSettings.h"

#include <catch2/catch.hpp>

#include "support/AsciiLocale.h"

namespace
{
struct Reading
{
    char const* text;
    unsigned long long large;
    int small;
};
} // namespace

TEST_CASE("sampler settings: what the user types is read from its start as far as it is a number")
{
    unsigned long long const most = 18446744073709551615ULL;
    for (auto const& [text, large, small] : std::vector<Reading>{
             {"", 0, 0},
             {" ", 0, 0},
             {"0", 0, 0},
             {"20000", 20000, 20000},
             {"007", 7, 7},
             {" 7", 7, 7},
             {"\t\n7", 7, 7},
             {"7 ", 7, 7},
             {"7 8", 7, 7},
             {"+5", 5, 5},
             {"-1", most, -1},
             {"-0", 0, 0},
             {"--1", 0, 0},
             {"+-1", 0, 0},
             {"- 1", 0, 0},
             {"3.5", 3, 3},
             {".5", 0, 0},
             {"1e3", 1, 1},
             {"1,000", 1, 1},
             {"0x10", 0, 0},
             {"draws", 0, 0},
             {"12draws", 12, 12},
             {"\xEF\xBC\x91", 0, 0},
             {"\xCE\xB2" "1", 0, 0},
             {"7\xCE\xB2", 7, 7},
             // The ends of the range of an int, of 63 bits and of 64 bits, and one beyond.
             {"2147483647", 2147483647, 2147483647},
             {"2147483648", 2147483648, -2147483647 - 1},
             {"4294967295", 4294967295, -1},
             {"4294967296", 4294967296, 0},
             {"4294967297", 4294967297, 1},
             {"9223372036854775807", 9223372036854775807, -1},
             {"9223372036854775808", 9223372036854775808ULL, -1},
             {"-9223372036854775808", 9223372036854775808ULL, 0},
             {"18446744073709551615", most, -1},
             {"18446744073709551616", 0, -1},
             {"-18446744073709551615", 1, 0},
             {"-18446744073709551616", 0, 0},
             {"99999999999999999999999999999999", 0, -1}})
    {
        CAPTURE(text);
        CHECK(zenqo::LargeSetting(wxString::FromUTF8(text)) == large);
        CHECK(zenqo::SmallSetting(wxString::FromUTF8(text)) == small);
    }
}

TEST_CASE("sampler settings: a text without a narrow form is no small setting")
{
    AsciiLocale const ascii;
    CHECK(zenqo::LargeSetting(wxString::FromUTF8("7\xCE\xB2")) == 7);
    CHECK(zenqo::SmallSetting(wxString::FromUTF8("7\xCE\xB2")) == 0);
}
