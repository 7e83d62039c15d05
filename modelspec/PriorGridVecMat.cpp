#include "modelspec/PriorGridVecMat.h"

#include "common/NumberGrid.h"

namespace
{
wxColour const GREY(190, 190, 190, 255);

wxString Cut(wxString const& name) { return name.length() <= 12 ? name : name.Left(11) + "+"; }
} // namespace

PriorGridVecMat::PriorGridVecMat(wxWindow* parent, wxArrayString const& names, Eigen::MatrixXf const&)
    : wxGrid(parent, wxID_ANY, wxPoint(100, 100), wxSize(400, 600)), m_editor(zenqo::MakeNumberEditor()),
      m_matrix(Eigen::MatrixXf::Zero(static_cast<Eigen::Index>(names.size()),
                                     static_cast<Eigen::Index>(names.size())))
{
    auto const count = static_cast<int>(names.size());
    zenqo::SetUpNumberGrid(this, count + 2, count + 4, {0, wxALIGN_RIGHT, 0});
    WriteHeading(3, count + 1, "precision");
    WriteHeading(0, 2, "mean");

    for (int col = 0; col < 4; ++col)
        MarkAsFixed(0, col);
    for (int col = 0; col < count + 4; ++col)
        MarkAsFixed(1, col);
    for (int i = 0; i < count; ++i)
    {
        for (int const col : {0, 2, 3})
            MarkAsFixed(i + 2, col);
        wxString const name = Cut(names[static_cast<std::size_t>(i)]);
        WriteName(i + 2, 0, name);
        WriteName(i + 2, 3, name);
        WriteName(1, i + 4, name);
    }
    zenqo::AlignNumbers(this);
}

PriorGridVecMat::~PriorGridVecMat() { m_editor->DecRef(); }

void PriorGridVecMat::MarkAsFixed(int row, int col)
{
    SetCellBackgroundColour(row, col, GREY);
    SetReadOnly(row, col);
}

void PriorGridVecMat::WriteHeading(int col, int width, wxString const& text)
{
    SetCellSize(0, col, 1, width);
    SetCellValue(0, col, text);
    SetCellAlignment(0, col, wxALIGN_CENTRE, wxALIGN_CENTRE);
}

void PriorGridVecMat::WriteName(int row, int col, wxString const& name)
{
    SetCellValue(row, col, name);
    SetCellAlignment(row, col, wxALIGN_LEFT, wxALIGN_CENTRE);
}
