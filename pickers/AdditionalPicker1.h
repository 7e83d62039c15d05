#pragma once

#include <wx/panel.h>

#include "engine/Export.h"

class wxCheckBox;

/// A single labelled check box, for one thing that is done in addition if the user wants it.
class ZENQO_API AdditionalPicker1 : public wxPanel
{
public:
    /// The box starts unticked. A literal ampersand in `label` is written twice.
    AdditionalPicker1(wxWindow* parent, wxString label);

    /// True if the box is ticked.
    bool GetState1() const;

private:
    wxCheckBox* m_box;
};
