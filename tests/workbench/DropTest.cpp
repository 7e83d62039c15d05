#include <catch2/catch.hpp>

#include "workbench/DataDesk.h"

namespace
{
/// Two observations on a, the text t, b and the text u.
void Fill(DataDesk& desk)
{
    auto const d = workbench::MakeDataset({"a", "t", "b", "u"}, 2);
    d->data.rightCols(4) << 1, 0, 3, 0, 2, 1, 4, 0;
    d->labelledColumns[2] = {{"x", "\xC3\xA9"}, {"x", "\xC3\xA9"}};
    d->labelledColumns[4] = {{"u"}, {"u", "u"}};
    desk.workspace.Assign("d", d);
}

std::vector<std::string> NamesOf(Dataset const& dataset)
{
    std::vector<std::string> names;
    for (auto const& name : dataset.varNames)
        names.push_back(name.utf8_string());
    return names;
}
} // namespace

TEST_CASE("variables are dropped, and text stays with its variable")
{
    DataDesk desk;
    Fill(desk);
    auto const before = desk.workspace.datasets.at("d");
    Dataset const copy = *before;
    CHECK(desk.Run("drop(d, \" b  a \");").empty());
    auto const& d = desk["d"];
    CHECK(d.name == "d");
    CHECK(NamesOf(d) == std::vector<std::string>{"constant", "t", "u"});
    CHECK(SameBits(d.data.col(0), copy.data.col(0)));
    CHECK(SameBits(d.data.col(1), copy.data.col(2)));
    CHECK(SameBits(d.data.col(2), copy.data.col(4)));
    REQUIRE(d.labelledColumns.size() == 2);
    CHECK(d.labelledColumns.at(1).labels == copy.labelledColumns.at(2).labels);
    CHECK(d.labelledColumns.at(1).levels == copy.labelledColumns.at(2).levels);
    CHECK(d.labelledColumns.at(2).labels == copy.labelledColumns.at(4).labels);
    CHECK(SameBits(*before, copy));

    desk.Run("drop(d, \"t\");");
    CHECK(NamesOf(desk["d"]) == std::vector<std::string>{"constant", "u"});
    CHECK(desk["d"].labelledColumns.size() == 1);
    CHECK(desk["d"].labelledColumns.at(1).labels == std::vector<std::string>{"u", "u"});
}

TEST_CASE("variables that cannot be dropped are told, and none is")
{
    DataDesk desk;
    Fill(desk);
    CHECK(desk.Failure("drop(d, \"\");") == "Line 1, column 1: no variable is named");
    CHECK(desk.Failure("drop(d, \" \");") == "Line 1, column 1: no variable is named");
    CHECK(desk.Failure("drop(d, \"a c\");") == "Line 1, column 1: the dataset has no variable \"c\"");
    CHECK(desk.Failure("drop(d, \"A\");") == "Line 1, column 1: the dataset has no variable \"A\"");
    CHECK(desk.Failure("drop(d, \"constant\");")
          == "Line 1, column 1: the dataset has no variable \"constant\"");
    CHECK(desk.Failure("drop(d, \"\xC3\xA9\");")
          == "Line 1, column 1: the dataset has no variable \"\xC3\xA9\"");
    CHECK(desk.Failure("drop(d, \"a b a\");") == "Line 1, column 1: \"a\" is given twice");
    CHECK(desk.Failure("drop(d, \"u a t b\");")
          == "Line 1, column 1: a dataset keeps at least one variable");
    CHECK(desk.Failure("drop(d, \"a\", \"b\");")
          == "Line 1, column 1: \"drop\" does not take 3 arguments; expected drop(dataset, "
             "\"variables\");");
    desk.workspace.Assign("none", workbench::MakeDataset({}, 2));
    CHECK(desk.Failure("drop(none, \"a\");") == "Line 1, column 1: the dataset has no variable \"a\"");
}

TEST_CASE("a dataset without observations loses variables like any other")
{
    DataDesk desk;
    desk.workspace.Assign("none", workbench::MakeDataset({"x", "y"}, 0));
    desk.Run("drop(none, \"x\");");
    CHECK(desk["none"].data.rows() == 0);
    CHECK(NamesOf(desk["none"]) == std::vector<std::string>{"constant", "y"});
}

TEST_CASE("dropping can be stopped")
{
    DataDesk desk;
    Fill(desk);
    for (desk.meter.stopAt = 1; desk.meter.stopAt <= 4; ++desk.meter.stopAt)
    {
        desk.meter.fractions.clear();
        CHECK(desk.Failure("drop(d, \"a\");")
              == "Line 1, column 1: interrupted; the statement changed nothing");
    }
    CHECK(desk.meter.begun.size() == static_cast<std::size_t>(desk.meter.ended));
}
