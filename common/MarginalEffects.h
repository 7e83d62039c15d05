#pragma once

#include <string>
#include <vector>

#include <Eigen/Core>
#include <wx/button.h>
#include <wx/radiobut.h>

class wxDialog;
class wxSizer;

namespace zenqo
{
/// The title of the dialogs that ask at which point marginal effects are calculated.
inline constexpr char EFFECTS_TITLE[] = "Calculate marginal effects";

/// What these dialogs have in common: the sentence, and the point, which the data give or the user.
///
/// The user's point begins at zero. It stays while another one is selected.
class MarginalEffects
{
public:
    /// Begins the frame of `dialog`. The user's point has an entry for each of `names`.
    MarginalEffects(wxDialog* dialog, std::string const& model, std::vector<std::string> names);

    /// The dialog's sizer, to which the rest of the frame is added.
    wxSizer* Sizer() const { return m_sizer; }

    /// Connects the controls with the handlers of `dialog`.
    template <class Dialog>
    void Bind(Dialog* dialog) const
    {
        for (auto* const button : {m_mean, m_each, m_median})
            button->Bind(wxEVT_RADIOBUTTON, &Dialog::OnDefaultPoint, dialog);
        m_custom->Bind(wxEVT_RADIOBUTTON, &Dialog::OnCustomPoint, dialog);
        m_define->Bind(wxEVT_BUTTON, &Dialog::OnDefinePointButton, dialog);
    }

    /// Whether the user may define a point now.
    void LetDefine(bool allowed) { m_define->Enable(allowed); }

    /// Asks for the user's point in `asked`, which is made as a child of `dialog` when it is null.
    template <class PointDialog>
    void Ask(wxDialog* dialog, PointDialog*& asked)
    {
        if (!asked)
            asked = new PointDialog(dialog, m_names);
        if (asked->ShowModal() == wxID_OK)
            m_point = asked->GetValues();
    }

    /// The selected point as a piece of script.
    std::string PointOption() const;

private:
    wxSizer* m_sizer;
    wxRadioButton* m_mean;
    wxRadioButton* m_each;
    wxRadioButton* m_median;
    wxRadioButton* m_custom;
    wxButton* m_define;
    Eigen::VectorXd m_point;
    std::vector<std::string> m_names;
};
} // namespace zenqo
