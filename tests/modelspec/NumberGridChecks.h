#pragma once

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <catch2/catch.hpp>

#include <wx/grid.h>

#include "support/Find.h"
#include "support/Stage.h"

/// What the grids have in common in which numbers are typed.
namespace number_grid_checks
{
using Texts = std::vector<wxString>;

/// The names "name1", "name2" and so on.
inline wxArrayString Names(int count)
{
    wxArrayString names;
    for (int i = 1; i <= count; ++i)
        names.Add("name" + std::to_string(i));
    return names;
}

inline wxArrayString Names(std::initializer_list<char const*> texts)
{
    wxArrayString names;
    for (auto const* text : texts)
        names.Add(text);
    return names;
}

inline Texts Column(wxGrid* grid, int col)
{
    Texts texts;
    for (int row = 0; row < grid->GetNumberRows(); ++row)
        texts.push_back(grid->GetCellValue(row, col));
    return texts;
}

inline Texts RowLabels(wxGrid* grid)
{
    Texts texts;
    for (int row = 0; row < grid->GetNumberRows(); ++row)
        texts.push_back(grid->GetRowLabelValue(row));
    return texts;
}

inline Texts ColLabels(wxGrid* grid)
{
    Texts texts;
    for (int col = 0; col < grid->GetNumberCols(); ++col)
        texts.push_back(grid->GetColLabelValue(col));
    return texts;
}

/// The settings that all of them share.
inline void Settings(wxGrid* grid)
{
    CHECK(dynamic_cast<wxGridStringTable*>(grid->GetTable()));
    CHECK(grid->GetSelectionMode() == wxGrid::wxGridSelectCells);
    CHECK(grid->IsEditable());
    CHECK(grid->CanDragGridSize());
    CHECK_FALSE(grid->CanDragColMove());
    CHECK_FALSE(grid->CanDragRowSize(0));
    CHECK(grid->CanDragColSize(0));
    int horizontal = 0;
    int vertical = 0;
    grid->GetRowLabelAlignment(&horizontal, &vertical);
    CHECK(horizontal == wxALIGN_LEFT);
    CHECK(vertical == wxALIGN_CENTRE);
    grid->GetDefaultCellAlignment(&horizontal, &vertical);
    CHECK(horizontal == wxALIGN_RIGHT);
    CHECK(vertical == wxALIGN_TOP);
}

inline void ColLabelAlignment(wxGrid* grid, int expected)
{
    int horizontal = 0;
    int vertical = 0;
    grid->GetColLabelAlignment(&horizontal, &vertical);
    CHECK(horizontal == expected);
    CHECK(vertical == wxALIGN_CENTRE);
}

inline bool HasNumberEditor(wxGrid* grid, int row, int col)
{
    wxGridCellEditorPtr const editor(grid->GetCellEditor(row, col));
    return dynamic_cast<wxGridCellFloatEditor*>(editor.get()) != nullptr;
}

/// Numbers of all magnitudes, with some that are infinite, not a number, zero or simple.
inline Eigen::MatrixXd RandomMatrix(std::mt19937& generator, int rows, int cols)
{
    std::uniform_real_distribution<double> mantissa(-10.0, 10.0);
    std::uniform_int_distribution<int> exponent(-308, 307);
    std::uniform_int_distribution<int> kind(0, 19);
    auto const draw = [&]
    {
        switch (kind(generator))
        {
        case 0: return std::numeric_limits<double>::infinity();
        case 1: return -std::numeric_limits<double>::infinity();
        case 2: return std::numeric_limits<double>::quiet_NaN();
        case 3: return -std::numeric_limits<double>::quiet_NaN();
        case 4: return 0.0;
        case 5: return 1e-308;
        case 6: return 1e308;
        case 7: return std::numeric_limits<double>::max();
        case 8: return std::round(mantissa(generator));
        case 9: return mantissa(generator);
        default: return mantissa(generator) * std::pow(10.0, exponent(generator));
        }
    };
    return Eigen::MatrixXd::NullaryExpr(rows, cols, draw);
}

/// The cells show what a default stream writes of the numbers, and what is read back is what these
/// texts say; a text too small to be a number repeats the number before it.
inline void CheckRoundTrip(wxGrid* grid, Eigen::MatrixXd const& written, Eigen::MatrixXd const& read)
{
    REQUIRE(grid->GetNumberRows() == read.rows());
    REQUIRE(grid->GetNumberCols() == read.cols());
    double expected = 0.0;
    int wrong = 0;
    for (int row = 0; row < read.rows(); ++row)
        for (int col = 0; col < read.cols(); ++col)
        {
            std::ostringstream stream;
            stream << written(row, col);
            errno = 0;
            double const parsed = std::strtod(stream.str().c_str(), nullptr);
            if (errno != ERANGE)
                expected = parsed;
            bool const same = std::isnan(expected) ? std::isnan(read(row, col)) : expected == read(row, col);
            if (grid->GetCellValue(row, col) != stream.str() || !same)
            {
                ++wrong;
                UNSCOPED_INFO("cell " << row << ", " << col << " of " << stream.str() << " shows "
                                      << grid->GetCellValue(row, col) << " and reads " << read(row, col));
            }
        }
    CHECK(wrong == 0);
}

/// Draws shapes and matrices, lets `redraw(generator, rows, cols, matrix)` show them, one after the
/// other in the same grid, and checks what `read()` gives back.
template <class Redraw, class Read>
void CheckRoundTrips(wxGrid* grid, bool square, int mostCols, Redraw redraw, Read read)
{
    auto const seed = GENERATE(1u, 2u, 20261119u);
    INFO("seed " << seed);
    std::mt19937 generator(seed);
    std::uniform_int_distribution<int> anyRows(0, 200);
    std::uniform_int_distribution<int> anyCols(0, mostCols);
    for (int round = 0; round < 12; ++round)
    {
        // First the extremes, then what comes.
        int const rows = round == 0 ? 200 : round == 1 ? 0 : round == 2 ? 1 : anyRows(generator);
        int const cols = square ? rows : mostCols == 1 ? 1 : anyCols(generator);
        INFO("round " << round << ", " << rows << " by " << cols);
        Eigen::MatrixXd const matrix = RandomMatrix(generator, rows, cols);
        redraw(rows, cols, matrix);
        CheckRoundTrip(grid, matrix, read());
    }
}

/// Makes the cell the current one of a grid that has the keyboard.
inline void GoTo(wxGrid* grid, int row, int col)
{
    grid->SetFocus();
    Pump(20);
    grid->GoToCell(row, col);
}

/// Is the user in the middle of typing?
inline bool IsEditing(wxGrid* grid) { return grid->IsCellEditControlShown(); }

inline bool CursorAt(wxGrid* grid, int row, int col)
{
    return grid->GetGridCursorCoords() == wxGridCellCoords(row, col);
}
} // namespace number_grid_checks
