#include "workbench/estimation/RandomStream.h"

#include <catch2/catch.hpp>

#include <random>
#include <set>

#include <boost/random/gamma_distribution.hpp>
#include <boost/random/normal_distribution.hpp>

using workbench::MakeRandomStream;

TEST_CASE("streams of chains, and of seeds, have nothing in common")
{
    std::set<std::uint64_t> seen;
    std::size_t count = 0;
    for (std::uint64_t const seed : {std::uint64_t{1}, std::uint64_t{2}, std::uint64_t{1} << 32,
                                     (std::uint64_t{1} << 32) + 1, std::uint64_t{1} << 53})
        for (int chain = 0; chain < 5; ++chain)
        {
            auto stream = MakeRandomStream(seed, chain);
            for (int i = 0; i < 1000; ++i, ++count)
                seen.insert(stream());
        }
    CHECK(seen.size() == count);
}

TEST_CASE("a seed gives the same numbers everywhere")
{
    // The generator and the seed sequence are those of the standard.
    for (std::uint32_t const chain : {0u, 1u, 77u})
    {
        auto stream = MakeRandomStream((std::uint64_t{3} << 32) + 42, static_cast<int>(chain));
        std::seed_seq words{42u, 3u, chain};
        std::mt19937_64 standard(words);
        for (int i = 0; i < 1000; ++i)
            REQUIRE(stream() == standard());
    }
    // The distributions are not; these are the numbers that Boost 1.74 gave.
    auto stream = MakeRandomStream(42, 0);
    boost::random::normal_distribution<double> normal;
    CHECK(normal(stream) == Approx(-0.4347048083).epsilon(1e-9));
    boost::random::gamma_distribution<double> gamma(12.5);
    CHECK(gamma(stream) == Approx(16.2977232375).epsilon(1e-9));
}
