#pragma once

#include <string>

#include <wx/arrstr.h>
#include <wx/dialog.h>

#include "engine/Export.h"
#include "engine/Model.h"

class DrawsPicker;
class wxRadioBox;

/// Asks which posterior draws of a model are to be plotted, and how.
///
/// It draws nothing: after `ShowModal` has returned `wxID_OK` the owner reads the getters and composes
/// the command.
class ZENQO_API PlotDrawsDialog : public wxDialog
{
public:
    /// `models` belongs to the host and outlives the dialog; its first model is picked.
    PlotDrawsDialog(wxWindow* parent, ModelMap* models);

    /// Picks model `index` of the map, from 0; nothing is chosen afterwards. An index that is not there
    /// picks none.
    void SetSelection(int index);

    /// The picked model as a key of the map; empty if there is none.
    std::string GetModelName() const;

    /// The names of the chosen draws in the order of their list. None is one empty string.
    wxArrayString GetVarNames() const;

    /// 0 histogram, 1 history, 2 all plots in one figure, 3 kernel density, 4 correlogram.
    int GetPlotType() const;

    /// The user accepts: no chosen draw is answered by a warning and the dialog stays. One is enough for
    /// every type of plot.
    void OnButtonOk(wxCommandEvent& event);

private:
    DrawsPicker* m_draws;
    wxRadioBox* m_type;
};
