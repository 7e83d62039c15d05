// The pickers of systems of equations.

#include <wx/frame.h>

#include "gallery/Entry.h"
#include "gallery/Shelf.h"
#include "modelspec/EqsNotebook.h"
#include "modelspec/EqsNotebookPage.h"
#include "modelspec/VariablePicker_YXS.h"

namespace
{
constexpr int LIST_HEIGHT = 200;

/// Moves entry `dep` of a page's left list to the upper list, and then those at `ind` to the lower.
void Specify(EqsNotebookPage* page, int dep, std::initializer_list<int> ind)
{
    wxCommandEvent event;
    SelectInFirstList(page, {dep});
    page->OnUpperButton(event);
    SelectInFirstList(page, ind);
    page->OnLowerButton(event);
}

/// Two equations, the first of them on view.
void SpecifyTwo(EqsNotebook* notebook)
{
    Specify(dynamic_cast<EqsNotebookPage*>(notebook->GetPage(0)), 1, {1, 4});
    notebook->SetSelection(1);
    Specify(dynamic_cast<EqsNotebookPage*>(notebook->GetPage(1)), 0, {0, 2});
    notebook->SetSelection(0);
}

wxTopLevelWindow* Notebook(Shelf& shelf)
{
    return FrameAround(
        [&shelf](wxFrame* frame)
        {
            auto* const notebook = new EqsNotebook(frame, shelf.datasets.at("longley")->varNames, LIST_HEIGHT);
            SpecifyTwo(notebook);
            return notebook;
        },
        wxSize(470, 470));
}

wxTopLevelWindow* Page(Shelf& shelf)
{
    return FrameAround(
        [&shelf](wxFrame* frame)
        {
            auto* const page = new EqsNotebookPage(frame, shelf.datasets.at("longley")->varNames, LIST_HEIGHT);
            Specify(page, 1, {1, 4});
            return page;
        });
}

wxTopLevelWindow* System(Shelf& shelf)
{
    return FrameAround(
        [&shelf](wxFrame* frame)
        {
            auto* const picker = new VariablePicker_YXS(frame, &shelf.datasets, LIST_HEIGHT);
            for (auto* const child : picker->GetChildren())
                if (auto* const notebook = dynamic_cast<EqsNotebook*>(child))
                    SpecifyTwo(notebook);
            return picker;
        },
        wxSize(470, 530));
}
} // namespace

std::vector<Entry> EquationEntries()
{
    return {
        {"modelspec", "EqsNotebook", Notebook},
        {"modelspec", "EqsNotebookPage", Page},
        {"modelspec", "VariablePicker_YXS", System},
    };
}
