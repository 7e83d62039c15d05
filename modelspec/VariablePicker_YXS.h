#pragma once

#include <string>
#include <vector>

#include <wx/arrstr.h>
#include <wx/panel.h>

#include "engine/Dataset.h"
#include "engine/Export.h"

class DatasetPicker;
class EqsNotebook;

/// Chooses the variables of a system of equations: the row in which the dataset is picked, and an
/// EqsNotebook under it. Picking another dataset begins anew with one empty equation.
class ZENQO_API VariablePicker_YXS : public wxPanel
{
public:
    /// `datasets` belongs to the host, is read again at each change, and outlives the panel; names
    /// that the panel shows stay in it. `listHeight` is handed on to the notebook.
    VariablePicker_YXS(wxWindow* parent, DatasetMap* datasets, int const& listHeight);

    /// The picked dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// The dependent variables, one for each equation; an equation without one gives an empty string.
    wxArrayString GetDepVars() const;

    /// The independent variables, one array for each equation; an equation without any gives one
    /// empty string.
    std::vector<wxArrayString> GetIndVars() const;

    /// True once a button was pressed on one of the present pages, until SetChanged(false).
    bool GetChanged() const;
    void SetChanged(bool changed);

    /// The user has picked another dataset.
    void OnDatasetChanged(wxCommandEvent& event);

private:
    wxArrayString FindNames() const;

    DatasetMap* m_datasets;
    DatasetPicker* m_datasetPicker;
    wxArrayString m_names; ///< Of the picked dataset's variables, the hidden first one included.
    EqsNotebook* m_notebook;
};
