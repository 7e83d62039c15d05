// How long a grid takes in which numbers are typed, to show a large matrix and to read it back.

#include <random>
#include <stdexcept>

#include <wx/frame.h>
#include <wx/grid.h>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"
#include "common/Number.h"
#include "modelspec/PriorGridSym.h"

namespace benchmarks
{
namespace
{
constexpr int SIZE = 200;

/// Each number made a text and stored, which can't be saved.
void Write(wxGridStringTable& table, Eigen::MatrixXd const& matrix)
{
    for (int row = 0; row < SIZE; ++row)
        for (int col = 0; col < SIZE; ++col)
            table.SetValue(row, col, zenqo::FormatNumberWide(matrix(row, col)));
}

/// Each text fetched and made a number.
Eigen::MatrixXd Read(wxGridStringTable& table)
{
    Eigen::MatrixXd matrix(SIZE, SIZE);
    for (int row = 0; row < SIZE; ++row)
        for (int col = 0; col < SIZE; ++col)
            table.GetValue(row, col).ToDouble(&matrix(row, col));
    return matrix;
}
} // namespace

void MeasureNumberGrids(Table& table)
{
    std::mt19937 generator(1);
    std::normal_distribution<double> normal(0.0, 100.0);
    Eigen::MatrixXd const matrix
        = Eigen::MatrixXd::NullaryExpr(SIZE, SIZE, [&] { return normal(generator); });
    wxArrayString names;
    for (int i = 0; i < SIZE; ++i)
        names.Add("name" + std::to_string(i));

    auto* const frame = new wxFrame(nullptr, wxID_ANY, "Grids", wxDefaultPosition, wxSize(800, 400));
    auto* const grid = new PriorGridSym(frame, names, matrix);
    frame->Show();
    Settle();
    wxGridStringTable alone(SIZE, SIZE);
    Write(alone, matrix);

    table.Compare({"PriorGridSym::RedrawGrid, 200 x 200: against a table", 1.5},
                  [&]
                  {
                      Settle();
                      return Seconds([&] { grid->RedrawGrid(names, matrix); });
                  },
                  [&] { return Seconds([&] { Write(alone, matrix); }); }, 25);
    // The sums are read, so that the reading can't be left out.
    double sum = 0.0;
    table.Compare({"PriorGridSym::ReadFields, 200 x 200: against a table", 1.5},
                  [&] { return Seconds([&] { sum += grid->ReadFields().sum(); }); },
                  [&] { return Seconds([&] { sum -= Read(alone).sum(); }); }, 25);
    if (sum != 0.0)
        throw std::runtime_error("the grid and the table alone hold different numbers");
    frame->Destroy();
}
} // namespace benchmarks
