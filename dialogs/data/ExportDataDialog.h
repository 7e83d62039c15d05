#pragma once

#include <wx/arrstr.h>
#include <wx/dialog.h>

#include "engine/Dataset.h"
#include "engine/Export.h"

class DatasetPicker;
class wxFilePickerCtrl;
class wxRadioBox;

/// Asks which dataset goes into which text file, and with which delimiter.
///
/// It touches neither file nor dataset: after `ShowModal` has returned `wxID_OK` the owner reads the
/// getters and composes the export command. Nothing is checked but what the file picker itself asks
/// before it lets the user replace a file.
class ZENQO_API ExportDataDialog : public wxDialog
{
public:
    /// `datasets` are offered in the map's order, with entry `selection` selected, or entry 0 if
    /// that is past the end. `flag` has no effect.
    ExportDataDialog(wxWindow* parent, DatasetMap* datasets, int selection, bool flag);

    /// The name of the chosen dataset; empty if there is none.
    std::string GetDatasetName() const;

    /// The folder of the chosen file, without a separator at its end.
    wxString GetPath() const;

    /// The whole path of the chosen file, folder included; empty if it has no narrow form.
    std::string GetFileName() const;

    /// Comma, semicolon or tab, as one character.
    char GetDelimiter() const;

    /// Selects dataset `index` and proposes "./NAME.csv" as the file. Choosing another dataset by
    /// hand leaves the file as it is. An index that is not in the list is ignored.
    void SetDataset(int index);

private:
    void Select(int index);
    void ProposeFile(wxString const& name);

    DatasetPicker* m_dataset;
    wxFilePickerCtrl* m_file;
    wxRadioBox* m_delimiter;
    wxArrayString m_names;
};
