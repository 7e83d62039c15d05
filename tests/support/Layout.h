#pragma once

#include <string>

#include <wx/sizer.h>

/// A flexible grid in words, to be compared whole: "2 rows, 1 column, column 0 grows". Gaps and a
/// direction other than both are told as well; a sizer of another kind is "no grid".
inline std::string Shape(wxSizer* sizer)
{
    auto* const grid = dynamic_cast<wxFlexGridSizer*>(sizer);
    if (!grid)
        return "no grid";
    auto const counted = [](int count, std::string const& what)
    { return std::to_string(count) + " " + what + (count == 1 ? "" : "s"); };
    std::string shape = counted(grid->GetRows(), "row") + ", " + counted(grid->GetCols(), "column");
    for (int row = 0; row < grid->GetRows(); ++row)
        if (grid->IsRowGrowable(static_cast<std::size_t>(row)))
            shape += ", row " + std::to_string(row) + " grows";
    for (int column = 0; column < grid->GetCols(); ++column)
        if (grid->IsColGrowable(static_cast<std::size_t>(column)))
            shape += ", column " + std::to_string(column) + " grows";
    if (grid->GetHGap() != 0 || grid->GetVGap() != 0)
        shape += ", gaps";
    if (grid->GetFlexibleDirection() != wxBOTH)
        shape += ", not flexible in both directions";
    return shape;
}

/// A font in words: "10 points, modern, bold". The face is told if one was asked for.
inline std::string FontOf(wxWindow const* window)
{
    wxFont const font = window->GetFont();
    std::string text = std::to_string(font.GetPointSize()) + " points";
    text += font.GetFamily() == wxFONTFAMILY_MODERN || font.GetFamily() == wxFONTFAMILY_TELETYPE
                ? ", modern"
                : ", another family";
    text += font.GetWeight() == wxFONTWEIGHT_BOLD ? ", bold" : "";
    text += font.GetStyle() == wxFONTSTYLE_NORMAL ? "" : ", slanted";
    return text;
}
