// The dialogs that drive other programs.

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>

#include "dialogs/external/BUGSDialog.h"
#include "dialogs/external/InitsNotebook.h"
#include "dialogs/external/InitsNotebookPage.h"
#include "dialogs/external/JAGSDialog.h"
#include "dialogs/external/MatlabDialog.h"
#include "dialogs/external/OctaveDialog.h"
#include "dialogs/external/RprojectDialog.h"
#include "dialogs/external/StanDialog.h"
#include "dialogs/external/StataDialog.h"
#include "gallery/Entry.h"
#include "gallery/Shelf.h"
#include "pickers/ScriptPicker.h"
#include "pickers/StorePicker.h"
#include "pickers/TextPicker.h"

namespace
{
/// What two chains begin with.
char const* const CHAINS[]
    = {"beta = zeros(7,1),\ntau = 0.001", "beta = [-3482258; 15; -0.04; -2; -1; -0.05; 1829],\ntau = 1"};

void Start(InitsNotebook* notebook)
{
    In<wxTextCtrl>(notebook->GetPage(0))->SetValue(CHAINS[0]);
    // The last tab gives way to a new chain.
    notebook->SetSelection(1);
    In<wxTextCtrl>(notebook->GetPage(1))->SetValue(CHAINS[1]);
    notebook->SetSelection(0);
}

/// Types one text after the other into the fields for names.
void FillTexts(wxDialog* dialog, std::vector<wxString> const& texts)
{
    auto const pickers = AllIn<TextPicker>(dialog);
    for (std::size_t i = 0; i < texts.size(); ++i)
        In<wxTextCtrl>(pickers[i])->SetValue(texts[i]);
}

void NameScript(wxDialog* dialog, wxString const& path)
{
    In<wxFilePickerCtrl>(AllIn<ScriptPicker>(dialog)[0])->SetPath(path);
}

/// A dialog for a sampler in which everything has been said.
template <class Dialog>
Dialog* Sampler(std::vector<wxString> const& texts, wxString const& model)
{
    auto* const dialog = new Dialog(nullptr);
    FillTexts(dialog, texts);
    NameScript(dialog, model);
    Start(AllIn<InitsNotebook>(dialog)[0]);
    auto* const store = AllIn<StorePicker>(dialog)[0];
    Choose(In<wxCheckBox>(store), wxEVT_CHECKBOX);
    In<wxTextCtrl>(store)->SetValue("employment");
    return dialog;
}

JAGSDialog* Jags()
{
    return Sampler<JAGSDialog>({"longley.TOTEMP, longley.GNP, design", "\"beta\", \"tau\""},
                               "models/employment.jags");
}

wxTopLevelWindow* JagsInits(Shelf&)
{
    auto* const dialog = Jags();
    AllIn<wxNotebook>(dialog)[0]->SetSelection(1);
    return dialog;
}

wxTopLevelWindow* Bugs(Shelf&)
{
    return Sampler<BUGSDialog>(
        {"longley.TOTEMP, longley.GNP, design", "\"beta[1:3]\", \"tau\"", "\"mu\", \"beta[4:7]\""},
        "models/employment.txt");
}

wxTopLevelWindow* Stan(Shelf&)
{
    auto* const dialog
        = Sampler<StanDialog>({"longley.TOTEMP, longley.GNP, design"}, "models/employment.stan");
    // The second choice of the first file.
    Choose(AllIn<wxRadioButton>(dialog)[1], wxEVT_RADIOBUTTON);
    AllIn<wxFilePickerCtrl>(dialog)[0]->SetPath("results/employment.csv");
    auto* const diagnose = AllIn<wxCheckBox>(dialog)[1];
    diagnose->SetValue(false);
    auto* const options = In<wxTextCtrl>(diagnose->GetParent());
    options->SetValue("algorithm=hmc engine=nuts max_depth=12");
    auto* const method = AllIn<wxChoice>(dialog)[0];
    method->SetSelection(1);
    wxCommandEvent event;
    dialog->OnChangeChoice(event);
    return dialog;
}

/// A dialog in which a script is named, and what goes out to it and comes back.
template <class Dialog>
Entry::Build Script(wxString const& path, wxString const& output, wxString const& input)
{
    return [=](Shelf&)
    {
        auto* const dialog = new Dialog(nullptr);
        NameScript(dialog, path);
        FillTexts(dialog, {output, input});
        return dialog;
    };
}

wxTopLevelWindow* Notebook(Shelf&)
{
    return FrameAround(
        [](wxFrame* frame)
        {
            auto* const notebook = new InitsNotebook(frame);
            Start(notebook);
            return notebook;
        },
        wxSize(430, 240));
}

wxTopLevelWindow* Page(Shelf&)
{
    return FrameAround(
        [](wxFrame* frame)
        {
            auto* const page = new InitsNotebookPage(frame);
            In<wxTextCtrl>(page)->SetValue(CHAINS[1]);
            return page;
        },
        wxSize(430, 200));
}
} // namespace

std::vector<Entry> ExternalDialogEntries()
{
    return {
        {"dialogs/external", "BUGSDialog", Bugs},
        {"dialogs/external", "InitsNotebook", Notebook},
        {"dialogs/external", "InitsNotebookPage", Page},
        {"dialogs/external", "JAGSDialog", [](Shelf&) { return Jags(); }},
        {"dialogs/external", "JAGSDialog, initial values", JagsInits},
        {"dialogs/external", "MatlabDialog",
         Script<MatlabDialog>("scripts/hp_filter.m", "longley, design", "trend, cycle")},
        {"dialogs/external", "OctaveDialog",
         Script<OctaveDialog>("scripts/hp_filter.m", "longley, design", "trend, cycle")},
        {"dialogs/external", "RprojectDialog",
         Script<RprojectDialog>("scripts/unit_roots.R", "longley", "adf, longley_differenced")},
        {"dialogs/external", "StanDialog", Stan},
        {"dialogs/external", "StataDialog",
         Script<StataDialog>("scripts/arima.do", "airquality", "coefficients, covariance")},
    };
}
