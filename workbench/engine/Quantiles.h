#pragma once

#include <cstddef>

namespace workbench
{
/// Takes quantiles of values in ascending order, without sorting all of them. They are those of
/// definition 7 in R. J. Hyndman and Y. Fan, "Sample Quantiles in Statistical Packages", The American
/// Statistician 50 (1996), 361-365: between the two values next to the place 1 + (n - 1) p of the sorted
/// ones the quantile lies on a straight line.
class QuantileTaker
{
public:
    /// Of the values from `first` up to `last`, one at least and none of them NaN. They are moved about.
    QuantileTaker(double* first, double* last) : m_first(first), m_from(first), m_last(last) {}

    /// The quantile p = `part` / `whole`, no smaller than the one taken before.
    double Take(std::size_t part, std::size_t whole);

private:
    double* m_first;
    double* m_from; ///< What stands before it are the smallest values.
    double* m_last;
};
} // namespace workbench
