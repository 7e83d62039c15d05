#pragma once

#include <wx/dialog.h>

#include "engine/Dataset.h"
#include "engine/Export.h"

class DatasetPicker;

/// Asks which dataset is to be removed from the workspace.
///
/// It removes nothing: after `ShowModal` has returned `wxID_OK` the owner asks for the name and
/// composes the command. Nothing is checked, so without datasets the name is empty.
class ZENQO_API ClearDatasetDialog : public wxDialog
{
public:
    /// `datasets` are offered in the map's order, with the first selected. They are read here alone.
    ClearDatasetDialog(wxWindow* parent, DatasetMap* datasets);

    /// The chosen dataset as a key of the map; empty if there is none.
    std::string GetDatasetName() const;

    /// Selects dataset `index` of the map, from 0. An index that is not there selects none.
    void SetDataset(int index);

    /// The user accepts: the dialog ends.
    void OnButtonOk(wxCommandEvent& event);

private:
    DatasetPicker* m_dataset;
};
