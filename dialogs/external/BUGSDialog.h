#pragma once

#include <map>
#include <string>

#include <Eigen/Core>
#include <wx/dialog.h>

#include "engine/Export.h"

class GibbsPicker;
class InitsNotebook;
class ScriptPicker;
class StorePicker;
class TextPicker;
class wxNotebook;
class wxPanel;

/// Asks for all that a run of OpenBUGS needs: data, parameters to monitor and to summarize, initial
/// values, model file, the lengths of the run, and whether the results are stored.
///
/// It runs nothing: after `ShowModal` has returned `wxID_OK` the owner reads the getters.
class ZENQO_API BUGSDialog : public wxDialog
{
public:
    explicit BUGSDialog(wxWindow* parent);
    ~BUGSDialog() override;

    /// The initial values by chain; see InitsNotebook.
    std::map<std::string, std::string> GetInits() const;

    /// The names of the data and of the parameters to monitor and to summarize, as they were typed.
    ///@{
    std::string GetData() const;
    std::string GetMonitor() const;
    std::string GetSumMonitor() const;
    ///@}

    /// The path of the model file, as it was typed; it may be empty.
    std::string GetScript() const;

    /// Whether the results are stored.
    bool GetStoreState() const;

    /// The name of the model to store, not checked; "NoStore" if the results are not stored.
    wxString GetModelName() const;

    /// Samples, burn-in, chains, thinning and seed as they were when the user last pressed "&Run",
    /// whether or not they were accepted; empty before.
    Eigen::VectorXd GetGibbsParams() const;

    /// The numbers in the fields. What can't be read is 0, a fraction is cut off; the user has not been
    /// able to accept that, but for the samples, which are never looked at.
    ///@{
    unsigned long long GetSamples() const; ///< Draws that are retained of each chain.
    unsigned long long GetBurnin() const;  ///< Draws that each chain makes and drops first.
    unsigned long long GetSeed() const;    ///< All 64 bits of it; GetGibbsParams has them rounded.
    int GetThin() const;                   ///< Of so many draws one is retained.
    int GetChains() const;                 ///< How many chains run.
    ///@}

    /// The user accepts: settings that are no whole numbers are answered by a warning and the dialog
    /// stays. Nothing else is looked at.
    void OnButtonOk(wxCommandEvent& event);

private:
    void FillDataPage(wxPanel* page);

    wxNotebook* m_notebook;
    wxPanel* m_dataPage;
    wxPanel* m_initsPage;
    TextPicker* m_data;
    TextPicker* m_monitor;
    TextPicker* m_summary;
    InitsNotebook* m_inits;
    ScriptPicker* m_script;
    GibbsPicker* m_sampler;
    StorePicker* m_store;
    Eigen::VectorXd m_settings;
};
