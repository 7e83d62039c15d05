#pragma once

#include <string>
#include <vector>

#include <wx/dialog.h>

#include "engine/Export.h"

class wxTextCtrl;

/// Asks for the name of the variable under which an element of a model is stored in a dataset.
class ZENQO_API AAD1_StoreElement : public wxDialog
{
public:
    /// `arguments` are six texts: [0] the element, [1] the model, [2] the dataset, [3] the label of the
    /// name's field, [4] the name that is proposed, [5] a note, which is shown even if it is empty.
    AAD1_StoreElement(wxWindow* parent, std::vector<std::string>& arguments);

    /// The name of the variable as it was typed; a legal one of the script language once the dialog was
    /// accepted.
    std::string GetVarName() const;

    /// The user accepts: a name that is missing or not legal is answered by a warning and the dialog
    /// stays.
    void OnButtonOk(wxCommandEvent& event);

private:
    wxTextCtrl* m_name;
};
