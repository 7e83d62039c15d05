#include "workbench/engine/Quantiles.h"

#include <catch2/catch.hpp>

#include <algorithm>
#include <random>

#include "workbench/plot/Distribution.h"

TEST_CASE("quantiles taken are those of the sorted values")
{
    std::mt19937_64 random(11);
    for (int const size : {1, 2, 3, 20, 21, 1000, 20001})
        for (bool const whole : {false, true})
        {
            INFO(size << (whole ? " whole numbers" : " numbers"));
            std::vector<double> values;
            for (int i = 0; i < size; ++i)
                values.push_back(whole ? static_cast<double>(random() % 5)
                                       : std::normal_distribution<double>()(random));
            auto sorted = values;
            std::sort(sorted.begin(), sorted.end());
            workbench::QuantileTaker taker(values.data(), values.data() + values.size());
            CHECK(taker.Take(0, 1) == sorted.front());
            CHECK(taker.Take(1, 20) == Approx(workbench::Quantile(sorted, 0.05)).margin(1e-12));
            CHECK(taker.Take(1, 20) == Approx(workbench::Quantile(sorted, 0.05)).margin(1e-12));
            CHECK(taker.Take(1, 2) == Approx(workbench::Quantile(sorted, 0.5)).margin(1e-12));
            CHECK(taker.Take(19, 20) == Approx(workbench::Quantile(sorted, 0.95)).margin(1e-12));
            CHECK(taker.Take(1, 1) == sorted.back());
        }
}
