#pragma once

#include <string>

#include <wx/dialog.h>

#include "engine/Export.h"

class wxFilePickerCtrl;
class wxSpinCtrl;

/// Asks which file a figure goes into and how large it is to be.
///
/// It writes nothing: after `ShowModal` has returned `wxID_OK` the owner reads the getters and makes the
/// file. The resolution is shown and can't be changed.
class ZENQO_API ExportFigureDialog : public wxDialog
{
public:
    /// `path` is the file that is proposed. `flag` has no effect.
    ExportFigureDialog(wxWindow* parent, bool flag, std::string const& path);

    /// The whole path of the chosen file, folder included.
    wxString GetFileName() const;

    /// The figure's width in pixels, 1 to 10000.
    int GetSize1() const;

    /// The figure's height in pixels, 1 to 10000.
    int GetSize2() const;

    /// The resolution in dots per inch, across: always 90.
    int GetDPI1() const;

    /// The resolution in dots per inch, down: always 90.
    int GetDPI2() const;

private:
    wxFilePickerCtrl* m_filePicker;
    wxSpinCtrl* m_width;
    wxSpinCtrl* m_height;
    wxSpinCtrl* m_dpiX;
    wxSpinCtrl* m_dpiY;
};
