#include "workbench/estimation/ChainRunner.h"

#include <catch2/catch.hpp>

#include <atomic>
#include <memory>

#include "workbench/Recorder.h"
#include "workbench/Scratch.h"
#include "workbench/estimation/RandomStream.h"

using workbench::Chain;
using workbench::RunChains;
using workbench::SamplerSettings;

namespace
{
/// Writes its number, how many iterations it has made, and a random number.
class CountingChain : public Chain
{
public:
    explicit CountingChain(int number)
        : m_number(number), m_random(workbench::MakeRandomStream(5, number))
    {
    }

    void Step() override
    {
        ++m_iterations;
        m_value = static_cast<double>(m_random() >> 11);
    }

    void Write(Eigen::Ref<Eigen::RowVectorXd, 0, Eigen::InnerStride<>> row) const override
    {
        row << m_number, m_iterations, m_value;
    }

private:
    int m_number;
    int m_iterations = 0;
    workbench::RandomStream m_random;
    double m_value = 0;
};

/// Goes on until it is told to throw, by the number of its iteration.
class ThrowingChain : public Chain
{
public:
    explicit ThrowingChain(std::int64_t throwAt) : m_throwAt(throwAt) {}

    void Step() override
    {
        if (++m_iterations == m_throwAt)
            throw std::out_of_range("the chain broke");
    }

    void Write(Eigen::Ref<Eigen::RowVectorXd, 0, Eigen::InnerStride<>>) const override {}

private:
    std::int64_t m_iterations = 0;
    std::int64_t m_throwAt;
};

Eigen::MatrixXd Count(SamplerSettings const& settings, unsigned threads)
{
    workbench::Progress progress;
    return RunChains(
        settings, 3, [](int chain) { return std::make_unique<CountingChain>(chain); }, progress,
        threads);
}

/// More iterations than any machine makes during a test.
SamplerSettings Endless(int chains) { return {1, 0, chains, std::int64_t{1} << 50, 1}; }
} // namespace

TEST_CASE("the draws that are kept are every thin-th iteration behind the burn-in, chain below chain")
{
    auto const draws = Count({4, 10, 3, 5, 1}, 0);
    REQUIRE(draws.rows() == 12);
    REQUIRE(draws.cols() == 3);
    for (Eigen::Index chain = 0; chain < 3; ++chain)
        for (Eigen::Index draw = 0; draw < 4; ++draw)
        {
            CHECK(draws(4 * chain + draw, 0) == static_cast<double>(chain));
            CHECK(draws(4 * chain + draw, 1) == 10.0 + 5.0 * static_cast<double>(draw + 1));
        }
    CHECK(Count({1, 0, 1, 1, 1}, 0)(0, 1) == 1);
}

TEST_CASE("the number of threads changes no draw")
{
    SamplerSettings const settings{200, 20, 7, 3, 1};
    auto const alone = Count(settings, 1);
    for (unsigned const threads : {0u, 2u, 3u, 7u, 50u})
        CHECK(Count(settings, threads) == alone);
}

TEST_CASE("a run reports its begin and its end, and the message tells of its draws")
{
    Meter meter;
    RunChains(
        {10, 0, 2, 1, 1}, 3, [](int chain) { return std::make_unique<CountingChain>(chain); }, meter);
    CHECK(meter.begun == std::vector<std::string>{"Sampling 10 draws of 2 chains"});
    CHECK(meter.ended == 1);
    REQUIRE(meter.fractions.size() >= 2);
    CHECK(std::is_sorted(meter.fractions.begin(), meter.fractions.end()));
    CHECK(meter.fractions.back() == 1.0);
}

TEST_CASE("a run that is stopped ends all its threads")
{
    for (int const stopAt : {1, 2, 4})
        for (unsigned const threads : {1u, 2u, 4u})
        {
            Meter meter;
            meter.stopAt = stopAt;
            auto const shared = std::make_shared<int>(0);
            auto const make = [shared](int) { return std::make_unique<ThrowingChain>(0); };
            CHECK_THROWS_AS(RunChains(Endless(5), 3, make, meter, threads), workbench::Interrupted);
            CHECK(meter.ended == 1);
        }
}

TEST_CASE("an exception of a chain stops the others and reaches the caller")
{
    for (unsigned const threads : {1u, 2u, 4u})
    {
        Meter meter;
        auto const make = [](int chain)
        { return std::make_unique<ThrowingChain>(chain == 0 ? 1000 : 0); };
        CHECK_THROWS_AS(RunChains(Endless(3), 3, make, meter, threads), std::out_of_range);
        CHECK(meter.ended == 1);
        auto const makeNone = [](int) -> std::unique_ptr<Chain> { throw workbench::Error("no chain"); };
        CHECK(ErrorOf([&] { RunChains(Endless(3), 3, makeNone, meter, threads); }) == "no chain");
    }
}

TEST_CASE("draws that would not fit into memory are refused before a chain is made")
{
    workbench::Progress progress;
    int made = 0;
    auto const make = [&](int chain)
    {
        ++made;
        return std::make_unique<CountingChain>(chain);
    };
    CHECK(
        ErrorOf(
            [&] {
        RunChains({std::int64_t{1} << 50, 0, 1, 1, 1}, 3, make, progress);
        })
        == "the draws would take 27021597.7 GB of memory, which is too much here: choose fewer draws or "
           "chains");
    CHECK(ErrorOf(
              [&] {
        RunChains({std::int64_t{1} << 40, 0, 1 << 30, 1, 1}, 1 << 20, make, progress);
    }).find("choose fewer draws or chains")
          != std::string::npos);
    CHECK(made == 0);
}
