#include "workbench/estimation/SamplerSettings.h"

#include <cmath>
#include <limits>
#include <string>

#include "workbench/engine/Error.h"

namespace workbench
{
namespace
{
/// All whole numbers up to this one are numbers that a script can write.
constexpr double LARGEST = 9007199254740992.0;

std::int64_t Whole(double value, double least, char const* what)
{
    std::string const name = what;
    if (!(value >= least) || value != std::floor(value))
        throw Error(name + " must be a "
                    + (least > 0.0 ? "positive whole number" : "whole number, 0 or more"));
    if (value > LARGEST)
        throw Error(name + " is too large");
    return static_cast<std::int64_t>(value);
}
} // namespace

SamplerSettings MakeSamplerSettings(Eigen::VectorXd const& numbers)
{
    if (numbers.size() != 5)
        throw Error("the settings of a sampler are five numbers");
    SamplerSettings settings;
    settings.draws = Whole(numbers[0], 1.0, "the number of draws");
    settings.burnIn = Whole(numbers[1], 0.0, "the burn-in");
    auto const chains = Whole(numbers[2], 1.0, "the number of chains");
    if (chains > std::numeric_limits<int>::max())
        throw Error("the number of chains is too large");
    settings.chains = static_cast<int>(chains);
    settings.thin = Whole(numbers[3], 1.0, "the thinning");
    settings.seed = static_cast<std::uint64_t>(Whole(numbers[4], 1.0, "the seed"));
    if ((numbers[1] + numbers[0] * numbers[3]) * numbers[2] > LARGEST)
        throw Error("the sampler would have to make too many iterations");
    return settings;
}

Eigen::RowVectorXd NumbersOf(SamplerSettings const& settings)
{
    Eigen::RowVectorXd numbers(5);
    numbers << static_cast<double>(settings.draws), static_cast<double>(settings.burnIn),
        settings.chains, static_cast<double>(settings.thin), static_cast<double>(settings.seed);
    return numbers;
}
} // namespace workbench
