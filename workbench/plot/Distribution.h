#pragma once

#include <vector>

namespace workbench
{
/// The functions of this header take finite values in ascending order, one at least.
using SortedValues = std::vector<double>;

/// The p-quantile, 0 <= p <= 1, by linear interpolation between the order statistics number
/// 1 + (n - 1) p around it: definition 7 of R. J. Hyndman and Y. Fan, "Sample Quantiles in Statistical
/// Packages", The American Statistician 50 (1996), 361-365.
double Quantile(SortedValues const& values, double p);

/// How many values lie in each of a row of bins of one width. Bin k goes from `start + k width` up to
/// but without its right end; the last one has its right end too.
struct Histogram
{
    double start = 0.0;
    double width = 1.0;
    std::vector<int> counts;
};

/// The histogram whose bins are at most as wide as 2 IQR n^(-1/3) and share the range of the values
/// evenly: the rule of D. Freedman and P. Diaconis, "On the Histogram as a Density Estimator",
/// Zeitschrift fuer Wahrscheinlichkeitstheorie 57 (1981), 453-476. Where half of the values are equal
/// the number of bins is 1 + log2 n, rounded up: H. A. Sturges, "The Choice of a Class Interval",
/// Journal of the American Statistical Association 21 (1926), 65-66. There are at most about 200 bins.
///
/// Of whole numbers the width is rounded to a whole number, and the bins begin halfway between two of
/// them, so that each bin can take equally many different values.
Histogram MakeHistogram(SortedValues const& values);

/// The bandwidth 0.9 min(s, IQR / 1.34) n^(-1/5) of a Gaussian kernel, s being the standard deviation:
/// B. W. Silverman, "Density Estimation for Statistics and Data Analysis" (1986), formula 3.31. Where
/// half of the values are equal it is s that counts. 0 if all values are equal, or there is but one.
double SilvermanBandwidth(SortedValues const& values);

/// The Gaussian kernel density estimate at `x`: the mean of the normal densities around the values
/// with standard deviation `bandwidth` (formula 2.2a of the same book). Values further away than nine
/// bandwidths, whose part is below 1e-17 of a near one's, are left out.
double KernelDensity(SortedValues const& values, double bandwidth, double x);
} // namespace workbench
