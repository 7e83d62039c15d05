#include "common/MatrixText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

namespace zenqo
{
namespace
{
/// The significant digits of a stream with default settings, and those that Eigen takes for all.
constexpr int STREAM_DIGITS = 6;
int const FULL_DIGITS = Eigen::NumTraits<double>::digits10();

/// More digits than any double has.
constexpr int MOST_DIGITS = 800;

int DigitsOf(Eigen::IOFormat const& format)
{
    switch (format.precision)
    {
    case Eigen::StreamPrecision:
    case 0: return STREAM_DIGITS;
    case Eigen::FullPrecision: return FULL_DIGITS;
    default: return std::clamp(format.precision, 1, MOST_DIGITS);
    }
}

std::string CellText(double value, int digits)
{
    std::array<char, MOST_DIGITS + 32> buffer;
    auto const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::general, digits)
                         .ptr;
    return std::string(buffer.data(), end);
}

/// Writes cells one by one, each at least as wide as the widest.
class CellWriter
{
public:
    CellWriter(std::vector<std::string> const& cells, Eigen::IOFormat const& format) : m_fill(format.fill)
    {
        if (format.flags & Eigen::DontAlignCols)
            return;
        for (std::string const& cell : cells)
            m_width = std::max(m_width, cell.size());
    }

    void Append(std::string& text, std::string const& cell) const
    {
        if (cell.size() < m_width)
            text.append(m_width - cell.size(), m_fill);
        text += cell;
    }

private:
    std::size_t m_width = 0;
    char m_fill;
};
} // namespace

std::string MatrixText(Eigen::Ref<Eigen::MatrixXd const> const& matrix, Eigen::IOFormat const& format)
{
    if (matrix.size() == 0)
        return format.matPrefix + format.matSuffix;

    int const digits = DigitsOf(format);
    std::vector<std::string> cells;
    cells.reserve(static_cast<std::size_t>(matrix.size()));
    for (Eigen::Index i = 0; i < matrix.rows(); ++i)
        for (Eigen::Index j = 0; j < matrix.cols(); ++j)
            cells.push_back(CellText(matrix(i, j), digits));

    CellWriter const writer(cells, format);
    std::string text = format.matPrefix;
    auto cell = cells.begin();
    for (Eigen::Index i = 0; i < matrix.rows(); ++i)
    {
        text += (i > 0 ? format.rowSpacer : std::string()) + format.rowPrefix;
        for (Eigen::Index j = 0; j < matrix.cols(); ++j)
        {
            if (j > 0)
                text += format.coeffSeparator;
            writer.Append(text, *cell++);
        }
        text += format.rowSuffix;
        if (i + 1 < matrix.rows())
            text += format.rowSeparator;
    }
    return text + format.matSuffix;
}
} // namespace zenqo
