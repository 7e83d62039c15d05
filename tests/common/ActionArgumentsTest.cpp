#include "common/ActionArguments.h"

#include <catch2/catch.hpp>

namespace
{
using Texts = std::vector<std::string>;

constexpr char SENTINEL[] = "__Zenqo_SYSTEM_DEFAULT_STRING___";

/// What is read from position 2 on behind "model" and "note".
void CheckRead(Texts tail, Texts const& names, Texts const& labels)
{
    tail.insert(tail.begin(), {"model", "note"});
    auto const read = zenqo::ReadNamesAndLabels(tail, 2);
    CHECK(read.names == names);
    CHECK(read.labels == labels);
}
} // namespace

TEST_CASE("arguments of actions: the entries from a position on")
{
    Texts const list = {"a", "b", "c"};
    CHECK(zenqo::EntriesFrom(list, 0) == list);
    CHECK(zenqo::EntriesFrom(list, 2) == Texts{"c"});
    CHECK(zenqo::EntriesFrom(list, 3).empty());
    CHECK(zenqo::EntriesFrom(list, 1000).empty());
    CHECK(zenqo::EntriesFrom({}, 0).empty());
}

TEST_CASE("arguments of actions: names and labels are on the two sides of the sentinel")
{
    CheckRead({}, {}, {});
    CheckRead({"x"}, {"x"}, {});
    CheckRead({"x", "y", SENTINEL, "a", "b"}, {"x", "y"}, {"a", "b"});
    CheckRead({SENTINEL, "a"}, {}, {"a"});
    CheckRead({"x", SENTINEL}, {"x"}, {});
    CheckRead({SENTINEL}, {}, {});
    CheckRead({"x", SENTINEL, SENTINEL, "a", SENTINEL, "b", SENTINEL}, {"x"}, {"a", "b"});
    CheckRead({"", SENTINEL, ""}, {""}, {""});
    CheckRead({"__Zenqo_SYSTEM_DEFAULT_STRING__", std::string(SENTINEL) + "_", SENTINEL, "a"},
              {"__Zenqo_SYSTEM_DEFAULT_STRING__", "__Zenqo_SYSTEM_DEFAULT_STRING____"}, {"a"});
}

TEST_CASE("arguments of actions: a list too short for the position holds nothing")
{
    CHECK(zenqo::ReadNamesAndLabels({}, 2).names.empty());
    CHECK(zenqo::ReadNamesAndLabels({SENTINEL, "a"}, 2).labels.empty());
}
