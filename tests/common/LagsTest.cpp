#include <catch2/catch.hpp>

#include "common/Lags.h"
#include "support/AsciiLocale.h"

using zenqo::ExpandLags;
using zenqo::LagEntry;

namespace
{
using Lags = std::vector<int>;

Lags Expand(std::initializer_list<char const*> entries)
{
    wxArrayString array;
    for (auto const* entry : entries)
        array.Add(wxString::FromUTF8(entry));
    return ExpandLags(array);
}
} // namespace

TEST_CASE("an entry is one number or two in the given order")
{
    CHECK(LagEntry(3, 3) == "3");
    CHECK(LagEntry(0, 0) == "0");
    CHECK(LagEntry(-7, -7) == "-7");
    CHECK(LagEntry(1, 4) == "1:4");
    CHECK(LagEntry(4, 1) == "4:1");
    CHECK(LagEntry(-3, -1) == "-3:-1");
    CHECK(LagEntry(-99, 99) == "-99:99");
}

TEST_CASE("entries are written out in their order and their own direction")
{
    CHECK(Expand({}) == Lags{});
    CHECK(Expand({"1"}) == Lags{1});
    CHECK(Expand({"1", "3:5", "4"}) == Lags{1, 3, 4, 5, 4});
    CHECK(Expand({"3:1"}) == Lags{3, 2, 1});
    CHECK(Expand({"5:2"}) == Lags{5, 4, 3, 2});
    CHECK(Expand({"-3:-1"}) == Lags{-3, -2, -1});
    CHECK(Expand({"-1:-3"}) == Lags{-1, -2, -3});
    CHECK(Expand({"-1:1", "1:-1"}) == Lags{-1, 0, 1, 1, 0, -1});
    CHECK(Expand({"2:4", "2:4"}) == Lags{2, 3, 4, 2, 3, 4});
    CHECK(Expand({"7:7"}) == Lags{7});
    auto const whole = Expand({"-99:99"});
    REQUIRE(whole.size() == 199);
    CHECK(whole.front() == -99);
    CHECK(whole.back() == 99);
}

TEST_CASE("every entry that two values of a spin control make comes back as these values")
{
    for (int from = -99; from <= 99; from += 3)
        for (int to = -99; to <= 99; ++to)
        {
            wxArrayString entries;
            entries.Add(LagEntry(from, to));
            auto const lags = ExpandLags(entries);
            bool right = lags.size() == static_cast<std::size_t>(std::abs(to - from)) + 1;
            for (std::size_t i = 0; right && i < lags.size(); ++i)
                right = lags[i] == from + (from < to ? 1 : -1) * static_cast<int>(i);
            if (!right)
                FAIL("from " << from << " to " << to);
        }
    SUCCEED();
}

TEST_CASE("numbers at the end of the range")
{
    CHECK(Expand({"2147483647"}) == Lags{2147483647});
    CHECK(Expand({"2147483645:2147483647"}) == Lags{2147483645, 2147483646, 2147483647});
    CHECK(Expand({"2147483647:2147483646"}) == Lags{2147483647, 2147483646});
    CHECK(Expand({"-2147483648:-2147483647"}) == Lags{-2147483647 - 1, -2147483647});
    CHECK(Expand({"-2147483647:-2147483648"}) == Lags{-2147483647, -2147483647 - 1});
}

TEST_CASE("an entry that is no number adds nothing, and its neighbours stand")
{
    for (auto const* entry :
         {"", " ", "x", ":", "1:", ":1", "x:2", "2:x", "::", "1::2", "-", "+", "1:-", "--1", "\xCE\xB2",
          "\xEF\xBC\x91", "2147483648", "-2147483649", "1:2147483648", "2147483648:1",
          "99999999999999999999", "1:-99999999999999999999", "nan", "inf"})
    {
        CAPTURE(entry);
        CHECK(Expand({"7", entry, "9"}) == Lags{7, 9});
    }
    // A number is what stands in front.
    CHECK(Expand({" 3", "+4", "5x", "6.9", "1:2:3", " 8 : 9 "}) == Lags{3, 4, 5, 6, 1, 2, 8, 9});
}

TEST_CASE("an entry that does not convert adds nothing")
{
    AsciiLocale const ascii;
    wxArrayString entries;
    entries.Add(wxString::FromUTF8("3 \xCE\xB2"));
    entries.Add("4");
    CHECK(ExpandLags(entries) == Lags{4});
}
