#include "workbench/estimation/TriangularFactor.h"

namespace workbench
{
TriangularFactor::TriangularFactor(Eigen::Index columns) : m_r(Eigen::MatrixXd::Zero(columns, columns))
{
}

void TriangularFactor::Add(Eigen::Ref<Eigen::MatrixXd const> const& rows)
{
    m_stack.resize(m_r.rows() + rows.rows(), m_r.cols());
    m_stack << m_r, rows;
    m_qr.compute(m_stack);
    m_r = m_qr.matrixQR().topRows(m_r.rows()).triangularView<Eigen::Upper>();
}
} // namespace workbench
