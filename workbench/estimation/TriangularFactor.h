#pragma once

#include <Eigen/Core>
#include <Eigen/QR>

namespace workbench
{
/// The factor R of the QR decomposition of a matrix with many rows, which come in blocks: only R is
/// kept, and R'R is the matrix of cross products without having been formed from them. Rows that come
/// later are put below R, and both are decomposed again (G. H. Golub and C. F. Van Loan, "Matrix
/// Computations", 4th ed. (2013), section 6.5.3).
///
/// The columns need not be alike in size: a Householder reflection is found from one column, and the
/// size of another does not enter it, so the digits of R are the same whatever the columns' units are.
class TriangularFactor
{
public:
    /// The factor of a matrix that has no rows yet.
    explicit TriangularFactor(Eigen::Index columns);

    /// So many rows are best added at a time.
    static constexpr Eigen::Index BLOCK = 1024;

    void Add(Eigen::Ref<Eigen::MatrixXd const> const& rows);

    /// A square matrix, zero below its diagonal.
    Eigen::MatrixXd const& R() const { return m_r; }

private:
    Eigen::MatrixXd m_r;
    Eigen::MatrixXd m_stack;
    Eigen::HouseholderQR<Eigen::MatrixXd> m_qr;
};
} // namespace workbench
