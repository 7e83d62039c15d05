#include "gallery/Entry.h"

#include <iterator>

#include <wx/frame.h>
#include <wx/listbox.h>
#include <wx/settings.h>
#include <wx/sizer.h>

std::vector<Entry> AllEntries()
{
    std::vector<Entry> all;
    for (auto&& entries :
         {ConsoleEntries(),
          PickerEntries(),
          ModelSpecEntries(),
          VariablePickerEntries(),
          EquationEntries(),
          DataDialogEntries(),
          AnalysisDialogEntries(),
          PostEstimationEntries(),
          ExternalDialogEntries(),
          ApplicationDialogEntries(),
          PaneEntries()})
        all.insert(all.end(), entries.begin(), entries.end());
    return all;
}

wxFrame* FrameAround(std::function<wxWindow*(wxFrame*)> const& make, wxSize size)
{
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "Gallery");
    frame->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(make(frame), 1, wxEXPAND);
    frame->SetSizer(sizer);
    wxSize best = sizer->GetMinSize();
    best.SetDefaults(frame->GetClientSize());
    size.SetDefaults(best);
    frame->SetClientSize(size);
    return frame;
}

void SelectInFirstList(wxWindow const* picker, std::vector<int> const& entries)
{
    auto* const list = In<wxListBox>(picker);
    for (int const entry : entries)
        list->SetSelection(entry);
}
