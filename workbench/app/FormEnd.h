#pragma once

#include <functional>
#include <string>
#include <vector>

#include <wx/string.h>

class wxCommandEvent;
class wxDialog;
class wxSizer;
class wxTextCtrl;

namespace workbench
{
/// A check that a form's input must pass: the words for the user if it doesn't, else empty.
using Check = std::function<wxString()>;

/// The lower part of a form: the field for the name of what it makes, and the buttons. OK makes
/// `checks` in their order; the first that fails is shown, and the form stays open.
class FormEnd
{
public:
    FormEnd(wxDialog* form, wxSizer* sizer, wxString const& name, std::vector<Check> checks);

    /// The name as it was typed, which is a legal one once the form was accepted.
    std::string Name() const;

private:
    void OnAccept(wxCommandEvent& event);

    wxDialog* m_form;
    wxTextCtrl* m_name;
    std::vector<Check> m_checks;
};

/// The sizer of a form, with `content` above the end that is still to come.
wxSizer* BeginForm(wxDialog* form, wxSizer* content);
} // namespace workbench
