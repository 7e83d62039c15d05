#include <catch2/catch.hpp>

#include <clocale>

#include "common/Text.h"

using zenqo::ToNarrow;
using zenqo::ToWide;

TEST_CASE("text goes from narrow to wide and back")
{
    for (std::string const text : {"", "wages", "Z\xC3\xBCrich", "\xCE\xB2_1", "\xF0\x9D\x9C\x8E"})
    {
        CHECK(ToWide(text) == wxString::FromUTF8(text.c_str()));
        CHECK(ToNarrow(ToWide(text)) == text);
    }
}

TEST_CASE("text that does not convert gives an empty string")
{
    CHECK(ToWide("abc\xFF") == "");
    CHECK(ToWide("\xC3") == "");

    std::string const before = std::setlocale(LC_CTYPE, nullptr);
    REQUIRE(std::setlocale(LC_CTYPE, "C"));
    CHECK(ToNarrow(wxString::FromUTF8("Z\xC3\xBCrich")) == "");
    CHECK(ToNarrow("Zurich") == "Zurich");
    std::setlocale(LC_CTYPE, before.c_str());
}
