#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include <wx/modalhook.h>
#include <wx/string.h>

class wxDialog;
class wxWindow;

/// What a modal dialog showed, whole: message boxes have a text and a style of buttons and icon.
struct ShownDialog
{
    ShownDialog() = default;
    explicit ShownDialog(wxDialog* dialog);

    wxString text;    ///< A message box's text; empty for any other dialog.
    wxString caption; ///< The caption or title.
    long style = 0;   ///< A message box's style (`wxOK | wxICON_EXCLAMATION` ...).
    wxWindow* parent = nullptr;
    std::string className;

    std::string Describe() const;
};

/// Answers the modal dialogs of one test in the order in which they come.
///
/// While a script lives, each dialog takes the next answer. A dialog past the last answer is an
/// incident, and so is an answer that is left when the script ends.
class ModalScript : public wxModalDialogHook
{
public:
    /// Is handed the dialog and gives the id with which `ShowModal` returns; `wxID_NONE` lets the
    /// dialog really show, so that real events can be sent to it.
    using Answer = std::function<int(wxDialog*)>;

    ModalScript();
    ~ModalScript() override;

    ModalScript& Then(Answer answer);
    ModalScript& Then(int id);

    std::vector<ShownDialog> const& Shown() const { return m_shown; }

    static bool Active();

protected:
    int Enter(wxDialog* dialog) override;

private:
    std::deque<Answer> m_answers;
    std::vector<ShownDialog> m_shown;
};
