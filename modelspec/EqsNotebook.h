#pragma once

#include <vector>

#include <wx/arrstr.h>
#include <wx/aui/auibook.h>

#include "engine/Export.h"

class EqsNotebookPage;

/// Specifies a system of equations: a tab for each, and a last tab with a plus icon that adds one.
///
/// A variable that is the dependent one of an equation is not offered on the other tabs. A tab learns
/// of the others when it is entered, so it is out of date while it is not shown. There is always at
/// least one equation, and there are at most 98; closing the only one empties it.
class ZENQO_API EqsNotebook : public wxAuiNotebook
{
public:
    /// `names` are the variables of the dataset, of which the first is never shown. `listHeight` is
    /// handed on to the pages.
    EqsNotebook(wxWindow* parent, wxArrayString& names, int const& listHeight);

    /// Begins anew with one empty equation and the variables `names`; all choices are lost, without
    /// an event.
    void OnDatasetChanged(wxArrayString& names);

    /// True once a button was pressed on one of the present pages, until SetChanged(false).
    bool GetChanged() const;
    void SetChanged(bool changed);

    /// The dependent variables, one for each equation; an equation without one gives an empty string.
    wxArrayString GetDepVars() const;

    /// The independent variables, one array for each equation; an equation without any gives one
    /// empty string.
    std::vector<wxArrayString> GetIndVars() const;

    /// Another tab is about to be shown: brings it up to date, or adds an equation.
    void OnPageChanging(wxAuiNotebookEvent& event);

    /// The user closes a tab: deletes its equation and numbers the others anew.
    void OnPageClosing(wxAuiNotebookEvent& event);

private:
    EqsNotebookPage* Page(int index) const;
    std::vector<EqsNotebookPage*> Pages() const;
    void FindAvailableNames();

    wxArrayString m_availableNames; ///< All names without the dependent variables in use.
    wxArrayString m_names;          ///< All names of the dataset.
    int m_listHeight;
};
