#pragma once

#include <wx/dialog.h>
#include <wx/frame.h>

class wxButton;
class wxNotebook;
class wxSizer;

namespace zenqo
{
/// The window style of a dialog that is a notebook over two buttons.
inline constexpr long NOTEBOOK_DIALOG_STYLE
    = wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER | wxMAXIMIZE_BOX | wxFRAME_FLOAT_ON_PARENT;

/// Adds to `sizer` the dialog's notebook, whose pages are grids of numbers.
wxNotebook* AddNotebook(wxDialog* dialog, wxSizer* sizer);

/// Adds to `sizer` the row that ends the dialog, `first` and "&OK" (`wxID_OK`), in a grid of `columns`
/// columns, and returns "&OK".
wxButton* AddClosingButtons(wxDialog* dialog, wxSizer* sizer, wxButton* first, int columns);

/// All of a dialog for numbers but its grid.
struct ValuesFrame
{
    wxNotebook* notebook;
    wxSizer* sizer;
    wxButton* accept;
};

/// Fills the dialog with an empty notebook over "&Cancel" and "&OK".
ValuesFrame BuildValuesFrame(wxDialog* dialog);

/// Adds `grid`, a child of the notebook, as the one page, lays out the dialog and lets "&OK" have the
/// keyboard.
void FinishValuesFrame(wxDialog* dialog, ValuesFrame const& frame, wxWindow* grid, wxString const& page);
} // namespace zenqo
