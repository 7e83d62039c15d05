#include "workbench/engine/Quantiles.h"

#include <algorithm>

namespace workbench
{
double QuantileTaker::Take(std::size_t part, std::size_t whole)
{
    auto const place = static_cast<std::size_t>(m_last - m_first - 1) * part;
    auto* const below = m_first + place / whole;
    auto const share = static_cast<double>(place % whole) / static_cast<double>(whole);
    std::nth_element(m_from, below, m_last);
    m_from = below;
    auto const low = *below;
    if (share == 0.0)
        return low;
    auto const high = *std::min_element(below + 1, m_last);
    return low == high ? low : (1.0 - share) * low + share * high;
}
} // namespace workbench
