#pragma once

#include "modelspec/RoleChecks.h"

/// How the cells of pickers with role lists must be laid out.
namespace role_checks
{
/// Gives access to what a flexible grid sizer was told of its growing rows and columns.
struct Growing : wxFlexGridSizer
{
    using Of = std::vector<std::pair<int, int>>; ///< Index and proportion.

    static Of Rows(wxFlexGridSizer const* sizer)
    {
        return Pairs(sizer->*(&Growing::m_growableRows), sizer->*(&Growing::m_growableRowsProportions));
    }
    static Of Columns(wxFlexGridSizer const* sizer)
    {
        return Pairs(sizer->*(&Growing::m_growableCols), sizer->*(&Growing::m_growableColsProportions));
    }

private:
    static Of Pairs(wxArrayInt const& indices, wxArrayInt const& proportions)
    {
        Of pairs;
        for (std::size_t i = 0; i < indices.size(); ++i)
            pairs.emplace_back(indices[i], proportions[i]);
        return pairs;
    }
};

constexpr int CENTRED = wxALIGN_CENTER_VERTICAL | wxALIGN_CENTER_HORIZONTAL;

/// The flexible grid without gaps that `sizer` is.
inline wxFlexGridSizer* CheckGrid(wxSizer* sizer, int rows, int columns, Growing::Of const& growingRows,
                                  Growing::Of const& growingColumns)
{
    auto* const grid = dynamic_cast<wxFlexGridSizer*>(sizer);
    REQUIRE(grid);
    CHECK(grid->GetRows() == rows);
    CHECK(grid->GetCols() == columns);
    CHECK(grid->GetHGap() == 0);
    CHECK(grid->GetVGap() == 0);
    CHECK(grid->GetFlexibleDirection() == wxBOTH);
    CHECK(Growing::Rows(grid) == growingRows);
    CHECK(Growing::Columns(grid) == growingColumns);
    return grid;
}

inline void CheckCaption(wxSizerItem const* item, wxString const& text)
{
    auto* const caption = dynamic_cast<wxStaticText*>(item->GetWindow());
    REQUIRE(caption);
    CHECK(caption->GetLabel() == text);
    CHECK(PlacementOf(item) == Placement{0, wxTOP | wxRIGHT | wxLEFT, 5});
}

inline void CheckSpacer(wxSizerItem const* item, wxSize const& size, Placement const& placement)
{
    CHECK(item->IsSpacer());
    CHECK(item->GetMinSize() == size);
    CHECK(PlacementOf(item) == placement);
}

/// A spacer of nothing, as it fills the cells beside captions.
inline void CheckGap(wxSizerItem const* item)
{
    CheckSpacer(item, wxSize(0, 0), {1, wxEXPAND, 0});
}

inline void CheckList(wxSizerItem const* item, wxListBox const* list, wxSize const& size, long style)
{
    CHECK(item->GetWindow() == list);
    CHECK(PlacementOf(item) == Placement{0, wxEXPAND | wxALL, 5});
    CHECK(item->GetWindow()->GetMinSize() == size);
    CHECK((list->GetWindowStyle() & (wxLB_SINGLE | wxLB_EXTENDED | wxLB_MULTIPLE | wxLB_SORT | wxHSCROLL))
          == style);
    CHECK(list->GetId() < 0);
}

inline int RowHeight(wxListBox const* list) { return list->GetFont().GetPixelSize().GetHeight() + 12; }

inline void CheckButton(wxSizerItem const* item, wxButton const* button, wxListBox const* left)
{
    CHECK(item->GetWindow() == button);
    CHECK(PlacementOf(item) == Placement{0, CENTRED | wxALL, 5});
    CHECK(button->GetMinSize() == wxSize(60, RowHeight(left)));
    CHECK(button->GetLabel() == ">>");
    CHECK(button->GetFont().GetPointSize() == 12);
    CHECK(button->GetFont().GetFaceName() == "Courier 10 Pitch");
    CHECK(button->GetFont().GetStyle() == wxFONTSTYLE_NORMAL);
    CHECK(button->GetFont().GetWeight() == wxFONTWEIGHT_NORMAL);
    CHECK(button->GetId() < 0);
}

/// What a column holds: a caption over a list of many, which is laid out in `item`.
struct ColumnLayout
{
    wxString caption;
    wxSize size;
    int rows = 2;
    Growing::Of growing = {{1, 20}};
};

inline void CheckColumn(wxSizerItem const* item, wxListBox const* list, ColumnLayout const& expected)
{
    CHECK(PlacementOf(item) == Placement{1, wxEXPAND, 5});
    auto* const column = CheckGrid(item->GetSizer(), expected.rows, 1, expected.growing, {});
    REQUIRE(column->GetItemCount() == 2);
    CheckCaption(Item(column, 0), expected.caption);
    CheckList(Item(column, 1), list, expected.size, wxLB_EXTENDED | wxHSCROLL);
}

/// The sizer below the choice row of a picker that has one.
inline wxSizerItem* BelowRow(wxPanel const* picker)
{
    CHECK((picker->GetWindowStyle() & ~(wxTAB_TRAVERSAL | wxBORDER_NONE)) == 0);
    auto* const top = dynamic_cast<wxBoxSizer*>(picker->GetSizer());
    REQUIRE(top);
    CHECK(top->GetOrientation() == wxVERTICAL);
    REQUIRE(top->GetItemCount() == 2);
    CHECK(Item(top, 0)->GetWindow() == picker->GetChildren().GetFirst()->GetData());
    CHECK(PlacementOf(Item(top, 0)) == Placement{0, wxEXPAND | wxTOP, 10});
    return Item(top, 1);
}

/// The three cells of a picker whose button stands in a column of its own.
inline wxFlexGridSizer* CheckButtonColumn(wxSizer* sizer, wxPanel const* picker, int growth, int below)
{
    Controls const controls(picker);
    auto* const grid = CheckGrid(sizer, 1, 3, {}, {{1, growth}});
    REQUIRE(grid->GetItemCount() == 3);
    CHECK(PlacementOf(Item(grid, 1)) == Placement{1, wxEXPAND, 5});
    auto* const column = dynamic_cast<wxBoxSizer*>(Item(grid, 1)->GetSizer());
    REQUIRE(column);
    CHECK(column->GetOrientation() == wxVERTICAL);
    REQUIRE(column->GetItemCount() == 3);
    CheckSpacer(Item(column, 0), wxSize(1, 1), {20, wxEXPAND, 5});
    CheckButton(Item(column, 1), controls.Button(0), controls.Left());
    CheckSpacer(Item(column, 2), wxSize(1, 1), {below, wxEXPAND, 5});
    return grid;
}
} // namespace role_checks
