#pragma once

#include <Eigen/Core>
#include <wx/arrstr.h>
#include <wx/dialog.h>

#include "engine/Export.h"
#include "engine/Model.h"

class ModelPickerPMP;
class PriorDialog;
class PriorGrid;
class PriorProbPicker;
class wxRadioBox;

/// Asks which models are to be compared by their marginal likelihoods, with which prior probabilities
/// and by which approximation.
///
/// It offers the models whose `results` have "logML", whatever stands there. It compares nothing: after
/// `ShowModal` has returned `wxID_OK` the owner reads the getters and has the models compared.
class ZENQO_API CompareModelsDialog : public wxDialog
{
public:
    /// `models` belongs to the host and is read here only.
    CompareModelsDialog(wxWindow* parent, ModelMap* models);

    /// The chosen models in the order of their list. None is one empty string.
    wxArrayString GetModelsNames() const;

    /// True if the Chib-Jeliazkov approximation is wanted where there is one, false for the
    /// Lewis-Raftery approximation throughout.
    bool GetCJ() const;

    /// True if the models are equally probable a priori. Once the user has asked to define the
    /// probabilities it is false while "Custom" is chosen, even if none could be defined.
    bool GetDefaultPriors() const;

    /// The prior probabilities in the order of GetModelsNames, as a column; equal ones if the defaults
    /// were accepted. Before the dialog was accepted they are those defined last, empty at first.
    Eigen::MatrixXd GetCustomPriors() const;

    /// Adds the page on which the probabilities are typed, with equal ones for the chosen models, to the
    /// dialog that the first OnDefinePriorProbButton makes. Nothing happens before.
    void WritePriorProbOnDialog();

    /// Puts equal probabilities for the chosen models in the place of what stands on that page.
    void RewritePriorProbOnDialog();

    /// The user accepts: no model, or another number of models than of probabilities of the user's own,
    /// is answered by a warning and the dialog stays.
    void OnButtonOk(wxCommandEvent& event);

    /// The user wants to define the probabilities (6022). Those typed before are offered again unless
    /// the models were touched in between. Numbers that are not positive or do not sum to one, give or
    /// take 0.000001, are answered by a warning and the dialog again, however it was left.
    void OnDefinePriorProbButton(wxCommandEvent& event);

    /// The user wants equal probabilities back (6023). They count once "&OK" is pressed.
    void OnDefaultPriorProb(wxCommandEvent& event);

private:
    void MakePriorDialog();
    bool AskForPriors();
    wxString Complaint(wxArrayString const& names) const;

    ModelPickerPMP* m_models;
    PriorProbPicker* m_priorChoice;
    PriorDialog* m_priorDialog = nullptr; ///< Made when it is first needed.
    PriorGrid* m_priorGrid = nullptr;     ///< Its one page.
    wxRadioBox* m_approximation;
    Eigen::MatrixXd m_priors;
};
