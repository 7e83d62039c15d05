#pragma once

#include <functional>
#include <tuple>

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
SamplerFrame BuildSamplerFrame(wxDialog* dialog, wxString const& dataPage, int boxes);

/// Adds a box to the column at the right.
wxStaticBoxSizer* AddSettingsBox(SamplerFrame const& frame, wxString const& label);

/// Adds a box to those of a page, which lie in `sizer`.
wxStaticBoxSizer* AddPageBox(wxPanel* page, wxSizer* sizer, wxString const& label);

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

/// Gives a page its sizer.
void LayOutPage(wxPanel* page, wxSizer* sizer);

/// Lays out the page of the initial values: `notebook`, its child, over an example.
void LayOutInitsPage(wxPanel* page, wxWindow* notebook);

/// In which words the dialogs differ.
struct SamplerWords
{
    wxString dataPage;
    wxString scriptBox;
    wxString scriptLabel;
};

/// Fills the dialog, and gives the notebook, its two pages, and what was made of the classes told.
/// `fillDataPage` fills the first page. `addMethod` adds a box below that of the model file; without it
/// there is none.
template <class InitsNotebook, class ScriptPicker, class Sampler, class StorePicker>
std::tuple<wxNotebook*, wxPanel*, wxPanel*, InitsNotebook*, ScriptPicker*, Sampler*, StorePicker*>
BuildSamplerDialog(wxDialog* dialog, SamplerWords const& words,
                   std::function<void(wxPanel*)> const& fillDataPage,
                   std::function<void(SamplerFrame const&)> const& addMethod = nullptr)
{
    auto const frame = BuildSamplerFrame(dialog, words.dataPage, addMethod ? 4 : 3);
    fillDataPage(frame.dataPage);
    auto* const inits = new InitsNotebook(frame.initsPage);
    LayOutInitsPage(frame.initsPage, inits);

    auto* const script = FillBox<ScriptPicker>(AddSettingsBox(frame, words.scriptBox),
                                               wxString(words.scriptLabel), 272);
    if (addMethod)
        addMethod(frame);
    auto* const sampler = FillBox<Sampler>(AddSettingsBox(frame, "Gibbs Sampler Parameters"));
    auto* const store = FillBox<StorePicker>(AddSettingsBox(frame, "Store Model's Results"));
    AddFocusedButtonRow(dialog, frame.sizer);
    LayOutDialog(dialog, frame.sizer);
    return {frame.notebook, frame.dataPage, frame.initsPage, inits, script, sampler, store};
}
///@}
} // namespace zenqo
