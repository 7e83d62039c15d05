#include <catch2/catch.hpp>

#include "common/NameBag.h"

using zenqo::NameBag;

TEST_CASE("a bag of names knows how often it holds each")
{
    NameBag bag;
    CHECK(bag.IsEmpty());
    CHECK(!bag.Holds("gdp"));
    CHECK(!bag.Take("gdp"));

    bag.Add("gdp");
    bag.Add("cpi");
    bag.Add("gdp");
    CHECK(!bag.IsEmpty());
    CHECK(bag.Take("gdp"));
    CHECK(bag.Holds("gdp"));
    CHECK(bag.Take("gdp"));
    CHECK(!bag.Holds("gdp"));
    CHECK(!bag.Take("gdp"));
    CHECK(bag.Holds("cpi"));
    CHECK(bag.Take("cpi"));
    CHECK(bag.IsEmpty());
}

TEST_CASE("a bag of names takes each text for a name of its own")
{
    wxArrayString names;
    for (auto const* const name : {"gdp", "GDP", "", "gdp ", "données", "donne\xCC\x81" "es"})
        names.Add(wxString::FromUTF8(name));
    NameBag bag(names);
    CHECK(!bag.Holds("Gdp"));
    CHECK(!bag.Holds(" "));
    for (wxString const& name : names)
    {
        CHECK(bag.Take(name));
        CHECK(!bag.Holds(name));
    }
    CHECK(bag.IsEmpty());
    CHECK(NameBag(wxArrayString()).IsEmpty());
}
