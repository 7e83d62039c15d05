#pragma once

#include <wx/dialog.h>

#include "engine/Export.h"

/// Tells the product's name and version and who made it, beside its logo.
///
/// The logo is "System Files/Icons/Logo192.png" below `ZENQO_SYSTEM`; without it the dialog shows the
/// text alone. `ShowModal` returns `wxID_OK`, whichever way the user closes it.
class ZENQO_API AboutZenqo : public wxDialog
{
public:
    explicit AboutZenqo(wxWindow* parent);
};
