#pragma once

#include <cstdint>

#include <Eigen/Core>

namespace workbench
{
/// How long a sampler runs. Each chain makes burnIn + draws * thin iterations: the first burnIn are
/// dropped, and of the others every thin-th is kept, so `draws` are kept of each chain whatever the
/// thinning.
struct SamplerSettings
{
    std::int64_t draws = 0; ///< Kept of each chain.
    std::int64_t burnIn = 0;
    int chains = 0;
    std::int64_t thin = 0;
    std::uint64_t seed = 0; ///< The same seed gives the same draws.

    std::int64_t Iterations() const { return burnIn + draws * thin; }
};

/// Makes settings of five numbers in the order of the members, which is that of GLOBAL_Gibbs. Throws an
/// Error if one is no whole number, is negative, or is zero where it is not the burn-in, or if there are
/// more iterations than can be counted.
SamplerSettings MakeSamplerSettings(Eigen::VectorXd const& numbers);

/// The five numbers that make `settings`.
Eigen::RowVectorXd NumbersOf(SamplerSettings const& settings);
} // namespace workbench
