#include "workbench/plot/Autocorrelation.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>

#include <unsupported/Eigen/FFT>

namespace workbench
{
namespace
{
/// Fewer lags are found faster one by one.
constexpr int FEW_LAGS = 64;

/// The sums over t of x(t) x(t + k), k = 1 to `lags`, by way of the spectrum of x.
Eigen::ArrayXd LagSumsOfSpectrum(Eigen::ArrayXd const& x, int lags)
{
    // With as many zeros behind the series nothing comes round from its other end.
    Eigen::Index size = 1;
    while (size < x.size() + std::min<Eigen::Index>(lags, x.size()))
        size *= 2;
    Eigen::VectorXd padded = Eigen::VectorXd::Zero(size);
    padded.head(x.size()) = x;
    Eigen::FFT<double> fft;
    Eigen::VectorXcd spectrum;
    fft.fwd(spectrum, padded);
    spectrum = spectrum.cwiseAbs2().cast<std::complex<double>>().eval();
    fft.inv(padded, spectrum);
    Eigen::ArrayXd sums = Eigen::ArrayXd::Zero(lags);
    auto const there = std::min<Eigen::Index>(lags, x.size() - 1);
    sums.head(there) = padded.segment(1, there);
    return sums;
}

Eigen::ArrayXd LagSums(Eigen::ArrayXd const& x, int lags)
{
    if (lags > FEW_LAGS && x.size() > 0)
        return LagSumsOfSpectrum(x, lags);
    Eigen::ArrayXd sums(lags);
    for (int lag = 1; lag <= lags; ++lag)
    {
        auto const length = std::max<Eigen::Index>(0, x.size() - lag);
        sums[lag - 1] = (x.head(length) * x.tail(length)).sum();
    }
    return sums;
}
} // namespace

Eigen::VectorXd Autocorrelations(Eigen::VectorXd const& series, int lags)
{
    constexpr double NOTHING = std::numeric_limits<double>::quiet_NaN();
    Eigen::ArrayXd const there = (!series.array().isNaN()).cast<double>();
    double const mean = series.array().isNaN().select(0.0, series.array()).sum() / there.sum();
    Eigen::ArrayXd deviations = series.array().isNaN().select(0.0, series.array() - mean);
    // Beside the largest of them all are small enough to be squared.
    double const largest = deviations.size() > 0 ? deviations.abs().maxCoeff() : 0.0;
    if (!(largest > 0.0))
        return Eigen::VectorXd::Constant(lags, NOTHING);
    deviations /= largest;
    double const variance = deviations.square().sum() / there.sum();

    Eigen::ArrayXd const all = Eigen::ArrayXd::LinSpaced(lags, 1.0, lags);
    Eigen::ArrayXd const pairs = there.minCoeff() > 0.0
                                     ? (static_cast<double>(series.size()) - all).max(0.0).eval()
                                     : LagSums(there, lags).round().eval();
    return (pairs > 0.0).select(LagSums(deviations, lags) / (pairs + all) / variance, NOTHING);
}

int CorrelogramLags(Eigen::Index n)
{
    auto const rule = static_cast<Eigen::Index>(10.0 * std::log10(static_cast<double>(n)));
    return static_cast<int>(std::min(n - 1, rule));
}

double WhiteNoiseBand(Eigen::Index n) { return 1.959963984540054 / std::sqrt(static_cast<double>(n)); }
} // namespace workbench
