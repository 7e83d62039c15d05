#include "common/SamplerRows.h"

#include <cstdio>
#include <cstdlib>

#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "common/TextLabel.h"
#include "common/Truncate.h"
#include "engine/Globals.h"

namespace zenqo
{
namespace
{
/// An entry of the engine's defaults. The matrix library checks the index in debug builds only.
double Default(Eigen::Index entry)
{
    auto const& defaults = Zenqo_SYSTEM_NAMESPACE::GLOBAL_Gibbs;
    if (entry >= defaults.size())
    {
        std::fprintf(stderr, "GLOBAL_Gibbs holds %ld entries where 5 are needed\n",
                     static_cast<long>(defaults.size()));
        std::abort();
    }
    return defaults[entry];
}

wxString Long(Eigen::Index entry)
{
    return wxString::Format("%lld", Truncate<long long>(Default(entry)));
}

wxString Short(Eigen::Index entry) { return wxString::Format("%d", Truncate<int>(Default(entry))); }

bool ValidateLong(wxTextCtrl const* field, wxString const& complaint, wxString& message)
{
    wxULongLong_t scratch;
    bool const converts = field->GetValue().ToULongLong(&scratch, 10);
    if (!converts)
        message = complaint;
    return converts;
}
} // namespace

std::vector<SamplerRow> DefaultSamplerRows()
{
    return {{"Retained draws per chain:", Long(0), wxTE_RIGHT},
            {"Burnin per chain:", Long(1), wxTE_RIGHT},
            {"Number of chains:", Short(2), wxTE_RIGHT | wxTAB_TRAVERSAL},
            {"Thinning:", Short(3), wxTE_RIGHT},
            {"Seed:", Long(4), wxTE_RIGHT}};
}

std::vector<wxTextCtrl*> BuildSamplerRows(wxPanel* panel, std::vector<SamplerRow> const& rows)
{
    auto* const column = new wxFlexGridSizer(static_cast<int>(rows.size()), 1, 0, 0);
    column->AddGrowableCol(0, 1);
    std::vector<wxFlexGridSizer*> lines;
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        lines.push_back(new wxFlexGridSizer(1, 2, 0, 0));
        lines[i]->AddGrowableCol(0, 1);
        column->Add(lines[i], 1, wxEXPAND | wxTOP, i == 0 ? 3 : 0);
    }

    std::vector<wxTextCtrl*> fields;
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        auto* const label = MakeTextLabel(panel, rows[i].label, wxSize(180, 20));
        fields.push_back(new wxTextCtrl(panel, wxID_ANY, rows[i].value, wxDefaultPosition,
                                        wxSize(70, 23), rows[i].style));
        lines[i]->Add(label, 0, wxALIGN_BOTTOM | wxALL, 5);
        lines[i]->Add(fields[i], 0, wxALL, 5);
    }
    panel->SetSizer(column, true);
    panel->Layout();
    return fields;
}

bool ValidateSampler(SamplerFields const& fields, wxString& message)
{
    message = wxEmptyString;
    return ValidateLong(fields.burnin, "The burn-in value must be a\npositive ineteger.", message)
           && ValidateCount(fields.chains, "The number of chains must be\na positive ineteger.", message)
           && ValidateCount(fields.thin, "The thining parameter value must\nbe a positive ineteger.",
                            message)
           && ValidateLong(fields.seed, "The seed value must be a\npositive ineteger.", message);
}

bool ValidateCount(wxTextCtrl const* field, wxString const& complaint, wxString& message)
{
    unsigned long scratch;
    bool const converts = field->GetValue().ToULong(&scratch, 10);
    if (!converts)
        message = complaint;
    return converts;
}
} // namespace zenqo
