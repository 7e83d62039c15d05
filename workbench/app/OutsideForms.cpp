#include "workbench/app/OutsideForms.h"

#include <wx/msgdlg.h>

#include "dialogs/external/BUGSDialog.h"
#include "dialogs/external/JAGSDialog.h"
#include "dialogs/external/MatlabDialog.h"
#include "dialogs/external/OctaveDialog.h"
#include "dialogs/external/RprojectDialog.h"
#include "dialogs/external/StanDialog.h"
#include "dialogs/external/StataDialog.h"
#include "engine/Functions.h"
#include "workbench/app/CallText.h"
#include "workbench/app/OutsideCalls.h"
#include "workbench/engine/Error.h"
#include "workbench/estimation/SamplerSettings.h"
#include "workbench/outside/JagsRun.h"
#include "workbench/outside/NameList.h"

namespace workbench
{
namespace
{
/// What the dialog of a sampler leaves to be checked; empty if all is well. What the command would refuse
/// of it is refused here, where the user can still mend it.
wxString Problem(JAGSDialog const& dialog)
{
    auto const monitors = SplitNames(dialog.GetMonitor());
    if (dialog.GetScript().empty())
        return "Choose the file of the model.";
    if (monitors.empty())
        return "Name at least one parameter to monitor.";
    if (dialog.GetStoreState() && !CheckID(Narrow(dialog.GetModelName())))
        return "The name of the model must consist of letters, digits and underscores, and must not begin with "
               "a digit.";
    try
    {
        auto const chains = ReadInitialValues(InitialValuesText(dialog.GetInits()));
        CheckJagsRun({{}, {}, monitors, chains, MakeSamplerSettings(dialog.GetGibbsParams())});
    }
    catch (Error const& error)
    {
        auto const words = Wide(error.what());
        return words.Left(1).Upper() + words.Mid(1) + ".";
    }
    return wxString();
}

/// Shows the dialog of a program that the workbench doesn't run, and says so when it is accepted.
template <class Dialog>
Asked AskInVain(wxWindow* parent, wxString const& program)
{
    Dialog dialog(parent);
    if (dialog.ShowModal() == wxID_OK)
        wxMessageBox(program + " can't be run by this workbench, and nothing was done.\n\nWhat it runs are JAGS, "
                               "GNU Octave and R.",
                     dialog.GetTitle(), wxOK | wxICON_INFORMATION, parent);
    return {};
}

/// The statement that runs a script by `command`.
template <class Dialog>
Asked AskBridge(wxWindow* parent, std::string const& command)
{
    Dialog dialog(parent);
    if (dialog.ShowModal() != wxID_OK)
        return {};
    return BridgeCall(command, dialog.GetScript(), dialog.GetOutputData(), dialog.GetInputData());
}
} // namespace

Asked AskJags(wxWindow* parent)
{
    JAGSDialog dialog(parent);
    // What was typed stays in the dialog until all is well or the user gives up.
    while (dialog.ShowModal() == wxID_OK)
    {
        auto const problem = Problem(dialog);
        if (problem.empty())
            return JagsCall({dialog.GetScript(), dialog.GetData(), dialog.GetMonitor(), dialog.GetInits(),
                             dialog.GetGibbsParams(),
                             dialog.GetStoreState() ? Narrow(dialog.GetModelName()) : std::string()});
        wxMessageBox(problem, dialog.GetTitle(), wxOK | wxICON_EXCLAMATION, parent);
    }
    return {};
}

Asked AskOpenBugs(wxWindow* parent) { return AskInVain<BUGSDialog>(parent, "OpenBUGS"); }

Asked AskStan(wxWindow* parent) { return AskInVain<StanDialog>(parent, "Stan"); }

Asked AskOctave(wxWindow* parent) { return AskBridge<OctaveDialog>(parent, "octave"); }

Asked AskRproject(wxWindow* parent) { return AskBridge<RprojectDialog>(parent, "rproject"); }

Asked AskMatlab(wxWindow* parent) { return AskInVain<MatlabDialog>(parent, wxString::FromUTF8("MATLAB®")); }

Asked AskStata(wxWindow* parent) { return AskInVain<StataDialog>(parent, wxString::FromUTF8("Stata®")); }
} // namespace workbench
