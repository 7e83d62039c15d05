#pragma once

class wxButton;
class wxDialog;
class wxSizer;
class wxString;

namespace zenqo
{
/// Adds to `sizer` the row of buttons that ends a dialog, the one that accepts (`wxID_OK`, with the
/// label `acceptLabel`) and "&Cancel" (`wxID_CANCEL`), and returns the first of the two.
wxButton* AddButtonRow(wxDialog* dialog, wxSizer* sizer, wxString const& acceptLabel, int proportion,
                       int flags);

/// The end of a dialog's constructor: gives it its sizer, lays it out and centres it, and repeats
/// the last step, since the size hints may have changed the size.
void LayOutDialog(wxDialog* dialog, wxSizer* sizer);
} // namespace zenqo
