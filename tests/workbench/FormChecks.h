#pragma once

#include <functional>
#include <vector>

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/listbox.h>

#include "support/Find.h"
#include "support/ListClicks.h"
#include "support/ModalScript.h"
#include "support/Stage.h"
#include "workbench/engine/Workspace.h"

/// A workspace's datasets: one of three variables.
inline DatasetMap Datasets() { return {{"macro", workbench::MakeDataset({"gdp", "cpi", "rate"}, 3)}}; }

/// Shows a form as a user meets it and does `steps` in it, then gives how it ended. `answers` are those
/// to the dialogs that the form shows.
template <class Form>
int Fill(Form& form, std::function<void()> const& steps, std::vector<ModalScript::Answer> const& answers = {})
{
    ModalScript script;
    script.Then(wxID_NONE);
    for (auto const& answer : answers)
        script.Then(answer);
    form.CallAfter(
        [&]
        {
            Pump(150);
            steps();
            if (form.IsModal())
                form.EndModal(wxID_ABORT);
        });
    return form.ShowModal();
}

inline void ClickOk(wxDialog& form) { Click(form.FindWindow(wxID_OK)); }

/// Clicks on entry `index` of the left list and on the button of a role.
inline void Move(wxWindow const* page, int index, std::size_t role)
{
    ClickEntry(Find<wxListBox>(page), index);
    Click(Find<wxButton>(page, role));
}
