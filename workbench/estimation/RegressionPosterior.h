#pragma once

#include <Eigen/Core>

#include "workbench/estimation/RegressionData.h"
#include "workbench/estimation/RegressionPrior.h"

namespace workbench
{
/// The posterior of a linear regression with the independent normal-gamma prior: G. Koop, "Bayesian
/// Econometrics" (2003), section 4.2. The conditional posteriors are
///
///     beta | tau, y ~ N(b, A^-1),    A = P + tau X'X,    A b = P m + tau X'y,
///     tau | beta, y ~ Gamma(shape + n/2, rate + (y - X beta)'(y - X beta) / 2).
///
/// The first is kept in coordinates in which it takes no decomposition for each tau. With P = L L',
/// X = Q R and the singular value decomposition L'R^-1 = U S V', put beta = centre + R^-1 V delta. Then
/// A has R'V (S^2 + tau I) V'R in its place: the elements of delta are independent, each with precision
///
///     A_i = S_i^2 + tau    and mean    home_i (pivot - tau) / A_i,
///
/// and (y - X beta)'(y - X beta) = squares + sum of (home_i + delta_i)^2. The centre is the mean b at
/// tau = pivot, a value near the mode, so that delta is small and nothing is lost by cancellation.
class RegressionPosterior
{
public:
    /// Throws an Error if `prior` is none for `data`, or the two are too many orders of magnitude apart.
    RegressionPosterior(RegressionData data, RegressionPrior prior);

    RegressionData const& Data() const { return m_data; }
    RegressionPrior const& Prior() const { return m_prior; }

    double TauShape() const { return m_prior.shape + 0.5 * static_cast<double>(m_data.observations); }
    double TauRate(double squares) const { return m_prior.rate + 0.5 * squares; }

    ///@{
    /// The coordinates delta.
    Eigen::ArrayXd const& PriorPrecisions() const { return m_precisions; } ///< S_i^2
    Eigen::ArrayXd const& Home() const { return m_home; }
    double Pivot() const { return m_pivot; }
    Eigen::MatrixXd const& Basis() const { return m_basis; } ///< R^-1 V
    Eigen::VectorXd const& Centre() const { return m_centre; }
    ///@}

    /// b, the mean of beta given `tau`.
    Eigen::VectorXd MeanAt(double tau) const;

    /// The logarithm of the determinant of A.
    double LogDeterminantAt(double tau) const;

    /// The logarithm of likelihood times prior density, normalizing constants included, for the beta in
    /// each row of `betas` and the tau beside it. `squares` is what Data().SquaresAt(betas) gives.
    Eigen::VectorXd LogDensity(Eigen::Ref<Eigen::MatrixXd const> const& betas,
                               Eigen::Ref<Eigen::VectorXd const> const& taus,
                               Eigen::Ref<Eigen::VectorXd const> const& squares) const;

private:
    void FindPivot(Eigen::ArrayXd const& pull);
    void FindCentre();

    RegressionData m_data;
    RegressionPrior m_prior;
    Eigen::MatrixXd m_root; ///< L
    Eigen::ArrayXd m_precisions;
    Eigen::ArrayXd m_home;
    double m_pivot = 0.0;
    Eigen::MatrixXd m_basis;
    Eigen::VectorXd m_centre;
};
} // namespace workbench
