#include "workbench/engine/Sort.h"

#include <catch2/catch.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>

#include "workbench/DataDesk.h"

namespace
{
double const NA = std::numeric_limits<double>::quiet_NaN();
double const INF = std::numeric_limits<double>::infinity();

/// Six observations on the text t, x, and n, which numbers them from 1.
void Fill(DataDesk& desk)
{
    auto const d = workbench::MakeDataset({"t", "x", "n"}, 6);
    d->data.col(1) << 0, 1, NA, 0, 2, 3;
    d->data.col(2) << 2, NA, 1, 1, -1, 2;
    d->data.col(3) << 1, 2, 3, 4, 5, 6;
    d->labelledColumns[1] = {{"b", "\xC3\xA9", "B", "a b"}, {"b", "\xC3\xA9", "", "b", "B", "a b"}};
    desk.workspace.Assign("d", d);
}

std::vector<double> Numbers(Dataset const& dataset)
{
    auto const column = dataset.data.col(dataset.data.cols() - 1);
    return {column.begin(), column.end()};
}
} // namespace

TEST_CASE(
    "observations are sorted by several keys, equal ones stay in their order, missing ones come last")
{
    using Order = std::vector<double>;
    DataDesk desk;
    auto const sorted = [&](std::string const& keys)
    {
        Fill(desk);
        CHECK(desk.Run("sort(d, \"" + keys + "\");").empty());
        return Numbers(desk["d"]);
    };
    CHECK(sorted("x") == Order{5, 3, 4, 1, 6, 2});
    // Text comes by its characters' numbers: capitals, small letters, letters with accents.
    CHECK(sorted("t") == Order{5, 6, 1, 4, 2, 3});
    CHECK(sorted("t x") == Order{5, 6, 4, 1, 2, 3});
    CHECK(sorted("x t") == Order{5, 4, 3, 6, 1, 2});
    CHECK(sorted("x n") == Order{5, 3, 4, 1, 6, 2});
    CHECK(sorted("n") == Order{1, 2, 3, 4, 5, 6});
}

TEST_CASE("all columns, labels and levels follow the order, and the old object stays")
{
    DataDesk desk;
    Fill(desk);
    auto const before = desk.workspace.datasets.at("d");
    Dataset const copy = *before;
    desk.Run("sort(d, \"t\");");
    CHECK(SameBits(*before, copy));
    auto const& d = desk["d"];
    CHECK(d.name == "d");
    CHECK(d.varNames == copy.varNames);
    auto const& text = d.labelledColumns.at(1);
    CHECK(text.labels == std::vector<std::string>{"B", "a b", "b", "b", "\xC3\xA9", ""});
    // The levels come in the order of first appearance, as the record asks, and the numbers with them.
    CHECK(text.levels == std::vector<std::string>{"B", "a b", "b", "\xC3\xA9"});
    CHECK(d.data.col(1).head(5) == (Eigen::VectorXd(5) << 0, 1, 2, 2, 3).finished());
    CHECK(std::isnan(d.data(5, 1)));
    CHECK(d.data.col(0) == Eigen::VectorXd::Ones(6));
    CHECK(d.data(0, 2) == -1);
}

TEST_CASE("all numbers have their place: infinities, both zeros, the smallest and the largest")
{
    auto const d = workbench::MakeDataset({"x", "n"}, 10);
    d->data.col(1) << NA, 1e308, INF, 0.0, -0.0, -4.9e-324, 4.9e-324, -INF, std::copysign(NA, -1.0),
        -1e308;
    d->data.col(2).setLinSpaced(1, 10);
    DataDesk desk;
    desk.workspace.Assign("d", d);
    desk.Run("sort(d, \"x\");");
    CHECK(Numbers(desk["d"]) == std::vector<double>{8, 10, 6, 4, 5, 7, 2, 3, 1, 9});
}

TEST_CASE("random sorts are those of the standard library, bit for bit")
{
    auto const seed = std::random_device()();
    INFO("seed " << seed);
    std::mt19937 random(seed);
    workbench::Progress progress;
    for (int round = 0; round < 60; ++round)
    {
        auto const rows = static_cast<Eigen::Index>(random() % 3000);
        auto const d = workbench::MakeDataset({"a", "b", "t", "c", "n"}, rows);
        auto& text = d->labelledColumns[3];
        text.levels = {"", "z", "\xE2\x82\xAC", "Z", "zz", "\xF0\x9F\x98\x80"};
        for (Eigen::Index i = 0; i < rows; ++i)
        {
            d->data(i, 1) = random() % 10 == 0 ? NA : static_cast<double>(random() % 7) - 3;
            d->data(i, 2) = std::ldexp(static_cast<double>(random()) - 2e9,
                                       static_cast<int>(random() % 2000) - 1000);
            auto const level = random() % text.levels.size();
            text.labels.push_back(text.levels[level]);
            d->data(i, 3) = level == 0 ? NA : static_cast<double>(level);
            d->data(i, 4) = random() % 3 == 0 ? -0.0 : 0.0;
            d->data(i, 5) = static_cast<double>(i);
        }
        std::vector<Eigen::Index> keys{1, 2, 3, 4};
        std::shuffle(keys.begin(), keys.end(), random);
        keys.resize(1 + random() % 4);

        std::vector<Eigen::Index> expected(static_cast<std::size_t>(rows));
        std::iota(expected.begin(), expected.end(), 0);
        std::stable_sort(expected.begin(), expected.end(),
                         [&](Eigen::Index a, Eigen::Index b)
                         {
                             for (auto const key : keys)
                             {
                                 double const x = d->data(a, key);
                                 double const y = d->data(b, key);
                                 if (std::isnan(x) || std::isnan(y))
                                 {
                                     if (std::isnan(x) != std::isnan(y))
                                         return std::isnan(y);
                                     continue;
                                 }
                                 if (key == 3)
                                 {
                                     auto const& s = text.labels[static_cast<std::size_t>(a)];
                                     auto const& t = text.labels[static_cast<std::size_t>(b)];
                                     if (s != t)
                                         return s < t;
                                 }
                                 else if (x != y)
                                     return x < y;
                             }
                             return false;
                         });
        REQUIRE(workbench::SortedRows(*d, keys, progress) == expected);

        auto const sorted = workbench::Sorted(*d, keys, progress);
        for (auto const column : {0, 1, 2, 4, 5})
            CHECK(SameBits(sorted->data.col(column), d->data.col(column)(expected).eval()));
        auto const& labelled = sorted->labelledColumns.at(3);
        REQUIRE(labelled.labels.size() == expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i)
        {
            auto const& label = text.labels[static_cast<std::size_t>(expected[i])];
            double const number = sorted->data(static_cast<Eigen::Index>(i), 3);
            CHECK(labelled.labels[i] == label);
            CHECK((label.empty() ? std::isnan(number)
                                 : labelled.levels.at(static_cast<std::size_t>(number)) == label));
        }
    }
}

TEST_CASE("what cannot be sorted by is told, and nothing changes")
{
    DataDesk desk;
    Fill(desk);
    CHECK(desk.Failure("sort(d, \"\");") == "Line 1, column 1: no variable is named");
    CHECK(desk.Failure("sort(d, \"x y\");") == "Line 1, column 1: the dataset has no variable \"y\"");
    CHECK(desk.Failure("sort(d, \"x x\");") == "Line 1, column 1: \"x\" is given twice");
    CHECK(desk.Failure("sort(d, \"constant\");")
          == "Line 1, column 1: the dataset has no variable \"constant\"");
    CHECK(desk.Failure("sort(d);")
          == "Line 1, column 1: \"sort\" does not take 1 argument; expected sort(dataset, "
             "\"variables\");");
    CHECK(desk.Failure("sort(d, x);")
          == "Line 1, column 9: expected a string in double quotes as the variables in sort(dataset, "
             "\"variables\"); but found the name \"x\"");
}

TEST_CASE("datasets with no observation, or one, are sorted")
{
    DataDesk desk;
    desk.workspace.Assign("none", workbench::MakeDataset({"x", "y"}, 0));
    desk.Run("sort(none, \"y x\");");
    CHECK(desk["none"].data.rows() == 0);
    auto const one = workbench::MakeDataset({"x"}, 1);
    one->data(0, 1) = NA;
    one->labelledColumns[1] = {{}, {""}};
    desk.workspace.Assign("one", one);
    desk.Run("sort(one, \"x\");");
    CHECK(SameBits(desk["one"], *one));
}

TEST_CASE("a long sort reports its progress and can be stopped")
{
    DataDesk desk;
    auto const large = workbench::MakeDataset({"x", "t"}, 100000);
    large->data.col(1).setRandom();
    large->data.col(2).setZero();
    large->labelledColumns[2] = {{"a"}, std::vector<std::string>(100000, "a")};
    desk.workspace.Assign("large", large);
    desk.Run("copy = large; sort(copy, \"t x\");");
    CHECK(desk.meter.begun
          == std::vector<std::string>{"Sorting the observations", "Copying the dataset"});
    CHECK(std::is_sorted(desk["copy"].data.col(1).begin(), desk["copy"].data.col(1).end()));
    auto const reports = static_cast<int>(desk.meter.fractions.size());
    CHECK(reports >= 12);
    for (desk.meter.stopAt = 1; desk.meter.stopAt <= reports; ++desk.meter.stopAt)
    {
        desk.meter.fractions.clear();
        CHECK(desk.Failure("sort(large, \"t x\");")
              == "Line 1, column 1: interrupted; the statement changed nothing");
    }
    CHECK(desk.meter.begun.size() == static_cast<std::size_t>(desk.meter.ended));
}
