#include <catch2/catch.hpp>

#include <utility>

#include "common/VariableName.h"

using zenqo::FamilyOf;
using zenqo::IsNumericSuffix;
using zenqo::splitName;

namespace
{
using Parts = std::pair<std::string, std::string>;

/// Stem and suffix. Both hold something before, which must not stay.
Parts Split(std::string const& full)
{
    Parts parts("old stem", "old suffix");
    splitName(full, parts.first, parts.second);
    return parts;
}

/// The stem of a member of a family, or that the name is none.
std::string Family(std::string const& full)
{
    std::string stem;
    return FamilyOf(full, stem) ? "family of " + stem : "none";
}
} // namespace

TEST_CASE("a variable's name is split at its last underscore")
{
    CHECK(Split("income_3") == Parts("income", "3"));
    CHECK(Split("x_y_2") == Parts("x_y", "2"));
    CHECK(Split("a_x") == Parts("a", "x"));
    CHECK(Split("a_1b") == Parts("a", "1b"));
    CHECK(Split("income") == Parts("income", ""));
    CHECK(Split("income_") == Parts("income", ""));
    CHECK(Split("income__") == Parts("income_", ""));
    CHECK(Split("income__7") == Parts("income_", "7"));
    CHECK(Split("_1") == Parts("", "1"));
    CHECK(Split("_") == Parts("", ""));
    CHECK(Split("") == Parts("", ""));
    CHECK(Split("3") == Parts("3", ""));
    CHECK(Split("L\xC3\xB6hne_12") == Parts("L\xC3\xB6hne", "12"));
    CHECK(Split("a_\xCE\xB2") == Parts("a", "\xCE\xB2"));
    CHECK(Split("not text \xFF_4") == Parts("not text \xFF", "4"));
}

TEST_CASE("a name may be split into itself")
{
    std::string name = "income_3";
    std::string suffix;
    splitName(name, name, suffix);
    CHECK(name == "income");
    CHECK(suffix == "3");

    std::string stem;
    name = "income_3";
    splitName(name, stem, name);
    CHECK(stem == "income");
    CHECK(name == "3");
}

TEST_CASE("a suffix is numeric if it is digits from end to end, however many")
{
    for (std::string const suffix : {"0", "7", "007", "2147483648", "9223372036854775808",
                                     "123456789012345678901234567890"})
        CHECK(IsNumericSuffix(suffix));
    for (std::string const suffix : {"", "x", "1b", "b1", "+1", "-1", " 1", "1 ", "1.0", "1e3", "0x1F",
                                     "\xD9\xA3", "\xEF\xBC\x91", "\xFF"})
        CHECK(!IsNumericSuffix(suffix));
}

TEST_CASE("a member of a numbered family has its stem")
{
    CHECK(Family("income_3") == "family of income");
    CHECK(Family("income_123456789012345678901234567890") == "family of income");
    CHECK(Family("x_y_2") == "family of x_y");
    CHECK(Family("income__7") == "family of income_");
    CHECK(Family("_1") == "family of ");
    CHECK(Family("L\xC3\xB6hne_12") == "family of L\xC3\xB6hne");
    for (auto const* const name : {"", "_", "3", "income", "income_", "a_x", "a_1b", "a_1_", "a_ 1"})
        CHECK(Family(name) == "none");
}
