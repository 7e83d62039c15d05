#include "common/SamplerDialog.h"

#include "common/ExampleLine.h"
#include "common/TypewriterFont.h"

namespace zenqo
{
namespace
{
wxPanel* AddPage(wxNotebook* notebook, wxString const& title, long style)
{
    auto* const page = new wxPanel(notebook, wxID_ANY, wxDefaultPosition, wxDefaultSize, style);
    notebook->AddPage(page, title);
    return page;
}

/// The first of the boxes in a column has a border at the top; those below it share theirs.
int TopBorder(wxSizer const* column) { return column->IsEmpty() ? wxTOP : 0; }
} // namespace

SamplerFrame BuildSamplerFrame(wxDialog* dialog, wxString const& dataPage, int boxes)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    auto* const columns = new wxFlexGridSizer(1, 2, 0, 0);
    columns->AddGrowableCol(0, 10);
    columns->AddGrowableCol(1, 1);
    sizer->Add(columns, 0, wxEXPAND, 5);

    auto* const notebook = new wxNotebook(dialog, wxID_ANY);
    columns->Add(notebook, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5);
    auto* const data = AddPage(notebook, dataPage, wxTAB_TRAVERSAL | wxBORDER_NONE);
    auto* const inits = AddPage(notebook, "Initial Values", wxTAB_TRAVERSAL);

    auto* const settings = new wxFlexGridSizer(boxes, 1, 0, 0);
    settings->AddGrowableRow(0, 5);
    columns->Add(settings, 0, wxEXPAND, 5);
    return {dialog, sizer, notebook, data, inits, settings};
}

wxStaticBoxSizer* AddSettingsBox(SamplerFrame const& frame, wxString const& label)
{
    return AddLabelledBox(frame.dialog, frame.settings, label, 0,
                          wxEXPAND | TopBorder(frame.settings) | wxRIGHT | wxBOTTOM);
}

wxStaticBoxSizer* AddPageBox(wxPanel* page, wxSizer* sizer, wxString const& label)
{
    return AddLabelledBox(page, sizer, label, 1,
                          wxEXPAND | wxLEFT | wxRIGHT | TopBorder(sizer) | wxBOTTOM, 3);
}

void LayOutPage(wxPanel* page, wxSizer* sizer)
{
    page->SetSizer(sizer);
    // GTK shows what is on the page before the toolkit lays it out in its final size, and complains of
    // what has no room until then.
    sizer->Fit(page);
}

void LayOutInitsPage(wxPanel* page, wxWindow* notebook)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(notebook, 1, wxEXPAND, 0);
    AddExampleLine(page, sizer, "beta = zeros(3,1), tau = 10, ...",
                   TypewriterFont(wxNORMAL_FONT->GetPointSize()), wxCENTRE);
    LayOutPage(page, sizer);
}
} // namespace zenqo
