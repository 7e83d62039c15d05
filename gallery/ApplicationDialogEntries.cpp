#include <wx/radiobox.h>

#include "dialogs/application/AboutZenqo.h"
#include "dialogs/application/DirectoriesDialog.h"
#include "dialogs/application/ExportFigureDialog.h"
#include "dialogs/application/ExportMatrixDialog.h"
#include "dialogs/application/OptionsDialog.h"
#include "dialogs/application/StartupHelpDialog.h"
#include "engine/Globals.h"
#include "gallery/Entry.h"

namespace
{
wxTopLevelWindow* Directories(Shelf&)
{
    Zenqo_SYSTEM_NAMESPACE::GLOBAL_DirectoryJAGS = "/usr/bin/jags";
    Zenqo_SYSTEM_NAMESPACE::GLOBAL_DirectoryOCTAVE = "/usr/bin/octave-cli";
    Zenqo_SYSTEM_NAMESPACE::GLOBAL_DirectoryR = "/usr/bin/R";
    return new DirectoriesDialog(nullptr);
}

wxTopLevelWindow* Matrix(Shelf&)
{
    auto* const dialog = new ExportMatrixDialog(nullptr, "Export Matrix", false, "weights");
    In<wxRadioBox>(dialog)->SetSelection(1);
    return dialog;
}
} // namespace

std::vector<Entry> ApplicationDialogEntries()
{
    return {
        {"dialogs/application", "AboutZenqo", [](Shelf&) { return new AboutZenqo(nullptr); }},
        {"dialogs/application", "DirectoriesDialog", Directories},
        {"dialogs/application", "ExportFigureDialog",
         [](Shelf&) { return new ExportFigureDialog(nullptr, false, "./histogram of mpg.png"); }},
        {"dialogs/application", "ExportMatrixDialog", Matrix},
        {"dialogs/application", "OptionsDialog",
         [](Shelf&)
         { return new OptionsDialog(nullptr, true, true, false, false, true, true, false, false); }},
        {"dialogs/application", "StartupHelpDialog", [](Shelf&) { return new StartupHelpDialog(nullptr); }},
    };
}
