#pragma once

#include <string>
#include <vector>

#include <wx/dialog.h>

#include "engine/Export.h"

/// Stands in for an action that a type of model does not support.
class ZENQO_API AAD0_NotReady : public wxDialog
{
public:
    /// `arguments` are not read.
    AAD0_NotReady(wxWindow* parent, std::vector<std::string>& arguments);

    /// The user accepts: the dialog ends.
    void OnButtonOk(wxCommandEvent& event);
};
