#pragma once

#include <map>
#include <string>

#include <Eigen/Core>
#include <wx/dialog.h>

#include "engine/Export.h"

class GibbsPickerStan;
class InitsNotebook;
class OutputFilePicker;
class ScriptPicker;
class StorePicker;
class TextPicker;
class wxCheckBox;
class wxChoice;
class wxNotebook;
class wxPanel;
class wxStaticBoxSizer;
class wxTextCtrl;

/// Asks for all that a run of Stan needs: data, output files, further options, initial values, model
/// file, method, the lengths of the run, and whether the results are stored.
///
/// It runs nothing: after `ShowModal` has returned `wxID_OK` the owner reads the getters.
class ZENQO_API StanDialog : public wxDialog
{
public:
    explicit StanDialog(wxWindow* parent);
    ~StanDialog() override;

    /// The initial values by chain; see InitsNotebook.
    std::map<std::string, std::string> GetInits() const;

    /// The names of the data, as they were typed.
    std::string GetData() const;

    /// The path of a file that is to be written; empty for the default.
    ///@{
    std::string GetOutputFile() const;
    std::string GetDiagnosticFile() const;
    ///@}

    /// Whether Stan itself is to summarize its results, and to diagnose them. Both are wanted at first.
    ///@{
    bool GetSummarizeState() const;
    bool GetDiagnoseState() const;
    ///@}

    /// Further options for the command line, as they were typed, blanks and all.
    std::string GetOptions() const;

    /// The path of the model file, as it was typed; it may be empty.
    std::string GetScript() const;

    /// "sample", "variational" or "optimize".
    std::string GetMethod() const;

    /// Whether the results are stored.
    bool GetStoreState() const;

    /// The name of the model to store, not checked; "NoStore" if the results are not stored.
    wxString GetModelName() const;

    /// Samples, burn-in, chains, thinning and seed as they were when the user last pressed "&Run",
    /// whether or not they were accepted; empty before.
    Eigen::VectorXd GetGibbsParams() const;

    /// The numbers in the fields. What can't be read is 0, a fraction is cut off; the user has not been
    /// able to accept that, but for the samples, which are never looked at. Fields that the method does
    /// not need are read like the others.
    ///@{
    unsigned long long GetSamples() const; ///< Draws that are retained of each chain.
    unsigned long long GetBurnin() const;  ///< Draws that each chain makes and drops first.
    unsigned long long GetSeed() const;    ///< All 64 bits of it; GetGibbsParams has them rounded.
    unsigned long long GetRefresh() const; ///< Draws between two reports of progress.
    int GetThin() const;                   ///< Of so many draws one is retained.
    int GetChains() const;                 ///< How many chains run.
    ///@}

    /// The user has chosen another method: only those fields can be edited that it needs.
    void OnChangeChoice(wxCommandEvent& event);

    /// The user accepts: settings that are no whole numbers are answered by a warning and the dialog
    /// stays, also those that the method does not need. Nothing else is looked at.
    void OnButtonOk(wxCommandEvent& event);

private:
    void FillDataPage(wxPanel* page);
    void FillOptions(wxStaticBoxSizer* box);
    void FillMethod(wxStaticBoxSizer* box);

    wxNotebook* m_notebook;
    wxPanel* m_dataPage;
    wxPanel* m_initsPage;
    TextPicker* m_data;
    wxChoice* m_method;
    InitsNotebook* m_inits;
    ScriptPicker* m_script;
    GibbsPickerStan* m_sampler;
    StorePicker* m_store;
    OutputFilePicker* m_outputFile;
    OutputFilePicker* m_diagnosticFile;
    wxCheckBox* m_summarize;
    wxCheckBox* m_diagnose;
    wxTextCtrl* m_options;
    Eigen::VectorXd m_settings;
};
