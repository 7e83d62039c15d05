#pragma once

#include <string>
#include <vector>

#include <wx/textctrl.h>

#include "engine/Export.h"

/// The read-only rich text control of the console: a small context menu, a fixed set of shortcuts,
/// and the way by which a selection of console text leaves the program, as text or as TeX.
///
/// It knows nothing of the workspace. Its text is written by ZenqoConsole alone, also through its
/// stream buffer; the user cannot type.
class ZENQO_API MainTextCtrl : public wxTextCtrl
{
public:
    explicit MainTextCtrl(wxWindow* parent);
    ~MainTextCtrl() override;

    /// Right press: pops up the menu. The event is not skipped, so the selection stays.
    void OnContextMenu(wxMouseEvent& event);

    /// The keys: Ctrl+A selects all, Ctrl+C copies, Ctrl+L clears, Ctrl+T copies as TeX. Any other
    /// key with Ctrl alone, and any with Alt alone but Alt+L, goes on to the frame's menus; all else
    /// is swallowed, so that the keyboard neither scrolls nor edits.
    void ProcessShortcuts(wxKeyEvent& event);

    /// Empties the control, and the control alone: the console catches up at its next print.
    void OnClearConsole(wxCommandEvent& event);

    /// Copies the selection as text.
    void OnCopyConsole(wxCommandEvent& event);

    /// Copies the selection as TeX.
    void OnExportConsole(wxCommandEvent& event);

    /// Puts the selection on the clipboard as TeX source: runs of lines with the same number of tabs
    /// become tables, all other lines pass through. Nothing selected, or a clipboard that does not
    /// open, ends it silently.
    void ExportAsTeX();

protected:
    /// Appends a whole block of narrow text at once. The inherited stream buffer appends byte by
    /// byte, which is slow and takes each byte of a multi-byte character for a character.
    std::streamsize xsputn(char const* text, std::streamsize count) override;

private:
    /// The indices, within `selection`, of the lines that are horizontal rules of the console.
    /// `firstLine` is the control's line on which the selection starts.
    std::vector<int> FindRuleLines(std::string const& selection, long firstLine);
};
