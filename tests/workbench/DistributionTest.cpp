#include <catch2/catch.hpp>

#include <algorithm>
#include <cmath>
#include <numeric>

#include "workbench/plot/Distribution.h"

using namespace workbench;

namespace
{
SortedValues Sorted(SortedValues values)
{
    std::sort(values.begin(), values.end());
    return values;
}

/// Unemployment in Longley's data.
SortedValues Unemployment()
{
    return Sorted({2356, 2325, 3682, 3351, 2099, 1932, 1870, 3578, 2904, 2822, 2936, 4681, 3813, 3931, 4806,
                   4007});
}
} // namespace

TEST_CASE("quantiles lie between the order statistics")
{
    CHECK(Quantile({7}, 0.0) == 7);
    CHECK(Quantile({7}, 1.0) == 7);
    CHECK(Quantile({1, 2, 3, 4}, 0.25) == 1.75);
    CHECK(Quantile({1, 2, 3, 4}, 1.0) == 4);
    // As Python's statistics.quantiles(method="inclusive") gives them.
    CHECK(Quantile(Unemployment(), 0.25) == 2348.25);
    CHECK(Quantile(Unemployment(), 0.5) == 3143.5);
    CHECK(Quantile(Unemployment(), 0.75) == 3842.5);
}

TEST_CASE("a histogram of whole numbers has bins of a whole width that begin halfway between two")
{
    // 2 IQR / cbrt(16) is 1185.99.
    auto const histogram = MakeHistogram(Unemployment());
    CHECK(histogram.start == 1869.5);
    CHECK(histogram.width == 1186);
    CHECK(histogram.counts == std::vector<int>{8, 6, 2});

    auto const dice = MakeHistogram({1, 1, 2, 3, 3, 3, 4, 6});
    CHECK(dice.start == 0.5);
    CHECK(dice.width == 2);
    CHECK(dice.counts == std::vector<int>{3, 4, 1});
}

TEST_CASE("the bins of other numbers share their range, and the largest value is in the last")
{
    // IQR 1.75, n 8: bins of at most 1.75, so that 3.5 take two.
    auto const histogram = MakeHistogram({0, 0.5, 1, 1.5, 2, 2.5, 3, 3.5});
    CHECK(histogram.start == 0);
    CHECK(histogram.width == 1.75);
    CHECK(histogram.counts == std::vector<int>{4, 4});
}

TEST_CASE("where half of the values are equal the number of bins is that of Sturges")
{
    // n is 8: 1 + log2(8) is 4.
    auto const histogram = MakeHistogram({0, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 4});
    CHECK(histogram.width == 1);
    CHECK(histogram.counts == std::vector<int>{7, 0, 0, 1});
}

TEST_CASE("equal values are one bin around them, one value too")
{
    auto const whole = MakeHistogram({5, 5, 5});
    CHECK(whole.start == 4.5);
    CHECK(whole.width == 1);
    CHECK(whole.counts == std::vector<int>{3});
    auto const other = MakeHistogram({2.5});
    CHECK(other.start == 2.375);
    CHECK(other.width == 0.25);
    CHECK(other.counts == std::vector<int>{1});
    CHECK(MakeHistogram({1e140, 1e140}).counts == std::vector<int>{2});
}

TEST_CASE("one value far out does not make more bins than can be seen")
{
    SortedValues values(1000);
    std::iota(values.begin(), values.end(), 0.0);
    for (double const far : {1e9, 1e9 + 0.5, 1e140})
    {
        values.push_back(far);
        auto const histogram = MakeHistogram(values);
        CHECK(histogram.counts.size() <= 201);
        CHECK(std::accumulate(histogram.counts.begin(), histogram.counts.end(), 0) == 1001);
        values.pop_back();
    }
}

TEST_CASE("the bandwidth is Silverman's")
{
    // 0.9 times the standard deviation 934.464, as IQR / 1.34 is larger, times 16^(-1/5).
    CHECK(SilvermanBandwidth(Unemployment()) == Approx(483.03789456746995).epsilon(1e-12));
    // With half of the values equal it is the standard deviation that counts.
    CHECK(SilvermanBandwidth({0, 0, 0, 0, 5}) == Approx(0.9 * std::sqrt(5.0) * std::pow(5.0, -0.2)));
    CHECK(SilvermanBandwidth({3, 3, 3}) == 0);
    CHECK(SilvermanBandwidth({3}) == 0);
}

TEST_CASE("the density is the mean of normal densities around the values")
{
    // By Python's statistics.NormalDist.
    auto const values = Unemployment();
    double const bandwidth = SilvermanBandwidth(values);
    CHECK(KernelDensity(values, bandwidth, 1000) == Approx(2.438272075817748e-05).epsilon(1e-12));
    CHECK(KernelDensity(values, bandwidth, 2500) == Approx(0.00031438479214995643).epsilon(1e-12));
    CHECK(KernelDensity(values, bandwidth, 4000) == Approx(0.00029172527372840496).epsilon(1e-12));
    CHECK(KernelDensity({0}, 1, 0) == Approx(0.3989422804014327).epsilon(1e-14));
    CHECK(KernelDensity({0}, 2, 1e6) == 0);
}

TEST_CASE("the area under a density is one")
{
    auto const values = Unemployment();
    double const bandwidth = SilvermanBandwidth(values);
    double area = 0;
    for (double x = -4000; x < 11000; x += 10)
        area += 10 * KernelDensity(values, bandwidth, x);
    CHECK(area == Approx(1.0).epsilon(1e-9));
}
