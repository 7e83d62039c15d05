#pragma once

#include <wx/notebook.h>
#include <wx/panel.h>

#include "common/DialogFrame.h"

namespace zenqo
{
/// What the dialogs share that ask how an outside sampler is to be run: a notebook of two pages at the
/// left, what goes to the sampler and the initial values, and boxes with the settings at the right.
///@{

/// The window that a dialog begins with; pages and right column are empty.
struct SamplerFrame
{
    wxDialog* dialog;
    wxSizer* sizer; ///< The dialog's.
    wxNotebook* notebook;
    wxPanel* dataPage;
    wxPanel* initsPage;
    wxSizer* settings; ///< The column at the right.
};
SamplerFrame BuildSamplerFrame(wxDialog* dialog, wxString const& dataTitle, int boxes);

/// Adds a box to the column at the right.
wxStaticBoxSizer* AddSettingsBox(SamplerFrame const& frame, wxString const& label);

/// Adds a box around a picker that is made of `arguments`.
template <class Picker, class... Arguments>
Picker* AddSettings(SamplerFrame const& frame, wxString const& label, Arguments... arguments)
{
    return FillBox<Picker>(AddSettingsBox(frame, label), arguments...);
}

/// Adds a box around the field for the model file, which has a label of its own.
template <class ScriptPicker>
ScriptPicker* AddModelFile(SamplerFrame const& frame, wxString const& box, wxString const& label)
{
    return AddSettings<ScriptPicker>(frame, box, label, 272);
}

/// The buttons below both columns, and the layout of all.
void FinishSamplerFrame(SamplerFrame const& frame);

/// Adds a box to those of a page, which lie in `sizer`.
wxStaticBoxSizer* AddPageBox(wxPanel* page, wxSizer* sizer, wxString const& label);

/// Gives a page its sizer. It is as small as its contents let it be until the notebook is shown.
void LayOutPage(wxPanel* page, wxSizer* sizer);

/// Adds a box around a field for the names of what the sampler is given or gives back.
template <class TextPicker>
TextPicker* AddNamesBox(wxPanel* page, wxSizer* sizer, wxString const& label, wxString const& example)
{
    return FillBox<TextPicker>(AddPageBox(page, sizer, label), wxString(example), 400, -1);
}

/// Examples of such names.
///@{
inline constexpr char DATA_EXAMPLE[] = "mat1, mat2, dat1.var2, ...";
inline constexpr char PARAMETERS_EXAMPLE[] = "\"mu\", \"tau\", \"beta[2:4]\", ...";
///@}

/// Fills the page of the initial values with a notebook over an example.
///@{
void LayOutInitsPage(wxPanel* page, wxWindow* notebook);

template <class InitsNotebook>
InitsNotebook* FillInitsPage(wxPanel* page)
{
    auto* const notebook = new InitsNotebook(page);
    LayOutInitsPage(page, notebook);
    return notebook;
}
///@}
///@}
} // namespace zenqo
