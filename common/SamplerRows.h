#pragma once

#include <vector>

#include <wx/string.h>

class wxPanel;
class wxTextCtrl;

namespace zenqo
{
/// One labelled field of a panel in which the user sets how a sampler runs.
struct SamplerRow
{
    wxString label;
    wxString value; ///< What the field shows at first.
    long style;     ///< The field's window style.
};

/// The rows that all samplers have, from top to bottom: retained draws, burn-in, chains, thinning,
/// seed. They show the engine's defaults (`GLOBAL_Gibbs`), truncated toward zero. Fewer than five
/// defaults are a fault of the host that ends the program, in release builds too.
std::vector<SamplerRow> DefaultSamplerRows();

/// Lays out `panel` as a column of `rows` and gives the fields, from top to bottom.
std::vector<wxTextCtrl*> BuildSamplerRows(wxPanel* panel, std::vector<SamplerRow> const& rows);

/// The fields that all samplers have and that must hold whole numbers. The retained draws are not
/// among them.
struct SamplerFields
{
    wxTextCtrl const* burnin;
    wxTextCtrl const* chains;
    wxTextCtrl const* thin;
    wxTextCtrl const* seed;
};

/// True if each field converts. Otherwise `message` says which is the first that does not; it is
/// empty if all do.
bool ValidateSampler(SamplerFields const& fields, wxString& message);

/// True if the field converts to an unsigned long; otherwise `message` becomes `complaint`.
bool ValidateCount(wxTextCtrl const* field, wxString const& complaint, wxString& message);
} // namespace zenqo
