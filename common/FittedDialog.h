#pragma once

#include <wx/dialog.h>
#include <wx/frame.h>

class wxButton;
class wxSizer;

namespace zenqo
{
/// The window style of a dialog that only tells something.
inline constexpr long TELLING_DIALOG_STYLE
    = wxDEFAULT_DIALOG_STYLE | wxFRAME_FLOAT_ON_PARENT | wxFRAME_SHAPED;

/// The window style of a dialog with settings of the application.
inline constexpr long SETTINGS_DIALOG_STYLE = TELLING_DIALOG_STYLE | wxFRAME_TOOL_WINDOW;

/// The window style of a dialog that asks where something is to be written.
inline constexpr long EXPORT_DIALOG_STYLE = wxDEFAULT_DIALOG_STYLE | wxFRAME_TOOL_WINDOW
                                            | wxFRAME_FLOAT_ON_PARENT | wxFRAME_NO_WINDOW_MENU;

/// Adds to `sizer` the row that ends a dialog which only tells something: the button "&Close", which
/// answers `id` and has the keyboard.
wxButton* AddCloseRow(wxDialog* dialog, wxSizer* sizer, int id);

/// The end of a dialog's constructor: gives it its sizer, makes it as large as its content and centres
/// it.
void FitDialog(wxDialog* dialog, wxSizer* sizer);
} // namespace zenqo
