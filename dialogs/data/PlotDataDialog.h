#pragma once

#include <wx/arrstr.h>
#include <wx/dialog.h>

#include "engine/Dataset.h"
#include "engine/Export.h"

class VariablePickerSingle;
class wxRadioBox;

/// Asks which variables of a dataset are to be plotted, and how.
///
/// It draws nothing: after `ShowModal` has returned `wxID_OK` the owner reads the getters and composes
/// the command.
class ZENQO_API PlotDataDialog : public wxDialog
{
public:
    /// `datasets` belongs to the host and outlives the dialog; its first dataset is picked.
    PlotDataDialog(wxWindow* parent, DatasetMap* datasets);

    /// Picks dataset `index` of the map, from 0; nothing is chosen afterwards. An index that is not
    /// there picks none.
    void SetSelection(int index);

    /// Picks dataset `index` and chooses `names`, which must be variables of it.
    void SetVariables(int index, wxArrayString& names);

    /// The picked dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// The chosen variables in the order of their list, of which scatter plots and X-Y lines have the
    /// last on the horizontal axis. None is one empty string.
    wxArrayString GetVarNames() const;

    /// 0 histogram, 1 scatter plot, 2 history, 3 kernel density, 4 X-Y lines, 5 correlogram.
    int GetPlotType() const;

    /// The user accepts: too few variables for the type of plot, two for the types 1 and 4 and one for
    /// the others, are answered by a warning and the dialog stays.
    void OnButtonOk(wxCommandEvent& event);

private:
    wxString Complaint() const;

    VariablePickerSingle* m_variables;
    wxRadioBox* m_type;
};
